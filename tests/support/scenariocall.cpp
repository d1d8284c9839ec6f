// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "scenariocall.h"

#include "scriptedactions.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <unistd.h>

namespace
{

const int unforeseenStatus = 64;
const char scenarioVariable[] = "KORVEX_SCENARIO";
const char* const notedVariables[] = {"SUDO_ASKPASS", "LC_CTYPE", "LC_NUMERIC"};

std::string entry(const std::string& text)
{
    return text + '\0';
}

std::string entryOfThisProcess(const std::string& what)
{
    return what + ' ' + std::to_string(::getpid());
}

} // namespace

ScenarioCall::ScenarioCall(int argumentCount, char* const argumentList[])
    : program(argumentList[0])
    , argumentWords(argumentList + 1, argumentList + argumentCount)
{
    program.erase(0, program.rfind('/') + 1);
    const char* const path = std::getenv(scenarioVariable);
    if (!path) {
        complain(program + ": " + scenarioVariable + " is not set");
        std::_Exit(unforeseenStatus);
    }
    scenarioPath = path;
}

ScenarioCall::Words ScenarioCall::begin() const
{
    std::string entries = entry(entryOfThisProcess("call")) + entry("program " + program);
    for (const std::string& argument : argumentWords)
        entries += entry("argument " + argument);
    for (const char* const name : notedVariables) {
        if (const char* const value = std::getenv(name))
            entries += entry(std::string("variable ") + name + '=' + value);
    }
    append(entries + entry("end"));

    std::ifstream scenario(scenarioPath);
    std::string line;
    const auto isRule = [&line] { return ScriptedActions::firstWord(line) == "on"; };
    bool isFound = false;
    while (!isFound && std::getline(scenario, line))
        isFound = isRule() && fits(line);
    if (!isFound)
        refuse("no rule fits this call");
    Words actions;
    while (std::getline(scenario, line) && !isRule())
        actions.push_back(line);
    return actions;
}

void ScenarioCall::note(const std::string& what, const std::string& value) const
{
    append(entry(entryOfThisProcess(what) + (value.empty() ? "" : ' ' + value)));
}

void ScenarioCall::end(int exitStatus) const
{
    note("ended");
    std::_Exit(exitStatus);
}

void ScenarioCall::refuse(const std::string& reason) const
{
    note("unmatched");
    complain(program + ": " + reason);
    end(unforeseenStatus);
}

void ScenarioCall::complain(const std::string& text)
{
    const std::string line = text + '\n';
    if (::write(STDERR_FILENO, line.data(), line.size()) < 0)
        std::abort();
}

ScenarioCall::Words ScenarioCall::wordsOf(const std::string& line)
{
    Words words;
    for (std::size_t at = 0; at != std::string::npos;) {
        const std::size_t blank = line.find(' ', at);
        words.push_back(line.substr(at, blank == std::string::npos ? blank : blank - at));
        at = blank == std::string::npos ? blank : blank + 1;
    }
    return words;
}

bool ScenarioCall::fits(const std::string& rule) const
{
    const Words words = wordsOf(rule);
    if (words.size() < 2 || words[1] != program)
        return false;
    Words wanted(words.begin() + 2, words.end());
    const bool isOpen = !wanted.empty() && wanted.back() == "...";
    if (isOpen)
        wanted.pop_back();
    if (isOpen ? argumentWords.size() < wanted.size() : argumentWords.size() != wanted.size())
        return false;
    const auto fitsOne = [](const std::string& word, const std::string& argument) {
        return word == "*" || ScriptedActions::unescaped(word) == argument;
    };
    return std::equal(wanted.begin(), wanted.end(), argumentWords.begin(), fitsOne);
}

void ScenarioCall::append(const std::string& entries) const
{
    const int file =
        ::open((scenarioPath + ".calls").c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    const ssize_t written = ::write(file, entries.data(), entries.size());
    if (written != static_cast<ssize_t>(entries.size()))
        std::abort();
    ::close(file);
}
