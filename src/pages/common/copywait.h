// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

class CFileCopy;
class CProgressDialog;
class QString;

// Processes events for so many milliseconds, sleeping while there are none.
void processEventsFor(int milliseconds);

// Waits until the queue has nothing left to do, with the window alive and the progress dialog
// showing text and how far the copying is. Nothing of that when there is nothing left at the start.
// The dialog's Stop is the caller's business and does not end the wait. False when the queue was
// stopped meanwhile, as its page was closed.
//
// Every turn is noted in the debug stream behind logTag.
//
// queue and progress have to outlive the call, whatever the events do (see PageLifetime).
bool waitForCopies(CFileCopy& queue, CProgressDialog& progress, const QString& text,
                   const char* logTag = "CPage3::OnCreate");
