// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// A stand-in for the tools that deal with drives, whichever name it is called by. The file that
// KORVEX_SCENARIO names says what each call does; the first rule that fits counts:
//
//   on PROGRAM ARGUMENT...   the lines up to the next rule are the actions of this call. Words are
//                            parted by single blanks and escaped as texts are; * stands for any one
//                            argument and ... at the end for any that follow.
//
// Actions, beside those of scriptedactions.h (paths are words as above):
//
//   mkdir PATH               with its missing parents
//   copy-tree FROM TO        a file, or what a folder holds, over what is there
//   real PROGRAM [replace OLD NEW]   becomes that program with the arguments of this call
//   ask                      gets a password as sudo --askpass does, or fails as it does
//   execute                  runs what follows --askpass; its exit status becomes that of the call
//
// A call that no rule fits, or with an action that there is not, complains and exits with 64.

#include "scenariocall.h"
#include "scriptedactions.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{

std::string pathIn(const ScenarioCall::Words& words, std::size_t index)
{
    return index < words.size() ? ScriptedActions::unescaped(words[index]) : "";
}

// Becomes the program; returns only when it cannot be started.
void becomeProgram(const std::string& program, ScenarioCall::Words arguments)
{
    std::string name = program;
    std::vector<char*> list = {name.data()};
    for (std::string& argument : arguments)
        list.push_back(argument.data());
    list.push_back(nullptr);
    ::execvp(name.c_str(), list.data());
}

int exitStatusOf(pid_t child)
{
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void copyTree(const std::string& from, const std::string& to)
{
    const auto options = std::filesystem::copy_options::recursive |
                         std::filesystem::copy_options::overwrite_existing |
                         std::filesystem::copy_options::copy_symlinks;
    std::filesystem::copy(from, to, options);
}

void becomeReal(const ScenarioCall& call, const ScenarioCall::Words& words)
{
    ScenarioCall::Words arguments = call.arguments();
    if (words.size() == 5 && words[2] == "replace")
        std::replace(arguments.begin(), arguments.end(), pathIn(words, 3), pathIn(words, 4));
    becomeProgram(pathIn(words, 1), arguments);
    call.refuse("cannot start " + pathIn(words, 1));
}

// Whether the program prints a password; the words are those of sudo 1.9.
bool isPasswordPrinted(const char* askpass)
{
    int channel[2];
    if (::pipe(channel) != 0)
        std::abort();
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(channel[1], 1);
        ::close(channel[0]);
        ::close(channel[1]);
        ::execl(askpass, askpass, "Password: ", nullptr);
        ScenarioCall::complain(std::string("sudo: unable to run ") + askpass + ": " +
                               std::strerror(errno));
        std::_Exit(255);
    }
    ::close(channel[1]);
    std::string printed;
    char bytes[256];
    for (ssize_t count; (count = ::read(channel[0], bytes, sizeof bytes)) > 0;)
        printed.append(bytes, static_cast<std::size_t>(count));
    ::close(channel[0]);
    exitStatusOf(child);
    return !printed.substr(0, printed.find('\n')).empty();
}

void ask(const ScenarioCall& call)
{
    const char* const askpass = std::getenv("SUDO_ASKPASS");
    if (!askpass) {
        ScenarioCall::complain("sudo: no askpass program specified, try setting SUDO_ASKPASS");
        call.end(1);
    }
    const bool isPrinted = isPasswordPrinted(askpass);
    call.note("password", isPrinted ? "yes" : "no");
    if (isPrinted)
        return;
    ScenarioCall::complain("sudo: no password was provided\nsudo: a password is required");
    call.end(1);
}

int executeArguments(const ScenarioCall& call)
{
    auto command = std::find(call.arguments().begin(), call.arguments().end(), "--askpass");
    if (command == call.arguments().end() || ++command == call.arguments().end()) {
        call.refuse("nothing to execute");
    }
    const pid_t child = ::fork();
    if (child == 0) {
        becomeProgram(*command, ScenarioCall::Words(command + 1, call.arguments().end()));
        ScenarioCall::complain("sudo: " + *command + ": command not found");
        std::_Exit(1);
    }
    return exitStatusOf(child);
}

void perform(ScenarioCall& call, const std::string& line)
{
    const std::string action = ScriptedActions::firstWord(line);
    const ScenarioCall::Words words = ScenarioCall::wordsOf(line);
    if (action == "mkdir")
        std::filesystem::create_directories(pathIn(words, 1));
    else if (action == "copy-tree")
        copyTree(pathIn(words, 1), pathIn(words, 2));
    else if (action == "real")
        becomeReal(call, words);
    else if (action == "ask")
        ask(call);
    else if (action == "execute")
        call.setStatus(executeArguments(call));
    else if (action == "exit")
        call.end(std::stoi(ScriptedActions::afterFirstWord(line)));
    else if (!ScriptedActions::perform(line))
        call.refuse("no such action: " + line);
}

} // namespace

int main(int argc, char* argv[])
{
    ScenarioCall call(argc, argv);
    for (const std::string& action : call.begin())
        perform(call, action);
    call.end();
}
