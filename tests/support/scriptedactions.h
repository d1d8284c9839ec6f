// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

// What the stand-ins for command-line tools can be told to do, one line of text per action. Both
// stand-ins call it; plain C++, so that they start as fast as the tools do.
//
//   out TEXT       writes to standard output; \n \r \b \\ and \xHH stand for bytes
//   err TEXT       the same to standard error
//   file N PATH    writes a file to standard output in blocks of N bytes, each when the one before
//                  has been read
//   lines N TEXT   writes N lines, each TEXT and its number
//   flood N        writes N MB to each channel, as fast as it can
//   hold PATH      makes PATH.reached and waits for the file PATH; see ToolGates
//   sleep MS       only to stay there until it is killed: a pause is no way to meet a moment
//   input          copies standard input to standard output until its end
//   environment N  writes the variable N as N=value, or N! when it is not set
//   ignore-term    ignores polite stop requests from here on
//   heed-term      keeps polite stop requests back from here on, for:
//   await-term     waits for such a request
//   child MS       starts a child that holds the output channels open for so long
//   exit N / crash

namespace ScriptedActions
{

// Does what the line says; false when it names no action. An empty line does nothing.
bool perform(const std::string& line);
// The first word of a line, and what follows the blank after it.
std::string firstWord(const std::string& line);
std::string afterFirstWord(const std::string& line);
// The text with its escapes replaced by the bytes that they stand for.
std::string unescaped(const std::string& text);

} // namespace ScriptedActions
