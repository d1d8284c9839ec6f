// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Nothing but the headers that the build precompiles for the tests.
