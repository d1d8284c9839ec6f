// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// A stand-in for any command-line tool. It does what the file "<own path>.script" says, line by
// line, and appends its arguments to "<own path>.calls", each call ended by "end" and every record
// by a zero byte. Without a script it ends at once. Beside the actions of scriptedactions.h:
//
//   only ARGUMENT  the lines that follow are for calls with this argument; alone, for all again

#include "scriptedactions.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>

namespace
{

bool isForThisCall(const std::string& only, int count, char* const arguments[])
{
    const std::string wanted = only.size() > 5 ? only.substr(5) : "";
    const auto isWanted = [&wanted](const char* argument) { return wanted == argument; };
    return wanted.empty() || std::any_of(arguments + 1, arguments + count, isWanted);
}

void recordCall(const std::string& path, int count, char* const arguments[])
{
    std::ofstream calls(path, std::ios::binary | std::ios::app);
    for (int i = 1; i < count; ++i)
        calls << "argument " << arguments[i] << '\0';
    calls << "end" << '\0';
}

} // namespace

int main(int argc, char* argv[])
{
    const std::string self = argv[0];
    recordCall(self + ".calls", argc, argv);
    std::ifstream script(self + ".script");
    bool isMeant = true;
    for (std::string line; std::getline(script, line);) {
        if (line.rfind("only", 0) == 0)
            isMeant = isForThisCall(line, argc, argv);
        else if (isMeant && !ScriptedActions::perform(line))
            std::cerr << "No such action: " << line << std::endl;
    }
    return 0;
}
