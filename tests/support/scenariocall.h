// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

// One call of the stand-in for the drive tools: what the scenario says about it, and its part of
// the record of all calls. That is "<scenario>.calls"; every entry ends in a zero byte:
//
//   call PID, program NAME, argument TEXT..., variable NAME=VALUE..., end     when a call begins
//   unmatched PID          no rule fits it, or its rule cannot be followed
//   password PID yes|no    whether sudo was given one, never the password itself
//   ended PID              unless it crashed, was killed or became another program
//
// What is appended together is appended in one write, as other calls append at the same time.
class ScenarioCall
{
public:
    using Words = std::vector<std::string>;

    // Exits at once when there is no scenario.
    ScenarioCall(int argumentCount, char* const argumentList[]);

    const Words& arguments() const { return argumentWords; }
    // The status that the call ends with unless told otherwise.
    void setStatus(int newStatus) { status = newStatus; }

    // Records the call and returns its actions; refuses a call that no rule fits.
    Words begin() const;
    // Records something about this call.
    void note(const std::string& what, const std::string& value = "") const;
    [[noreturn]] void end() const { end(status); }
    [[noreturn]] void end(int exitStatus) const;
    // Complains about a call that the scenario has not foreseen, and ends it.
    [[noreturn]] void refuse(const std::string& reason) const;

    static void complain(const std::string& text);
    // A line split at single blanks: two in a row have an empty word between them.
    static Words wordsOf(const std::string& line);

private:
    bool fits(const std::string& rule) const;
    void append(const std::string& entries) const;

    std::string program;
    Words argumentWords;
    std::string scenarioPath;
    int status = 0;
};
