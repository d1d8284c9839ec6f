// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "toollimits.h"

// Another limit for tools while it lives: over at once (0), for a wait whose end the test needs
// once it has looked; or out of reach (forGood), for one that must not end by itself meanwhile.
class OtherLimit
{
public:
    static constexpr int forGood = 24 * 60 * 60 * 1000;

    OtherLimit(std::atomic<int>& whichLimit, int milliseconds)
        : limit(whichLimit)
        , usual(whichLimit.exchange(milliseconds))
    {
    }
    ~OtherLimit() { limit = usual; }
    OtherLimit(const OtherLimit&) = delete;
    OtherLimit& operator=(const OtherLimit&) = delete;

private:
    std::atomic<int>& limit;
    const int usual;
};
