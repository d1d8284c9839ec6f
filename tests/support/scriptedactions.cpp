// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "scriptedactions.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>

namespace
{

void writeAll(int channel, const char* bytes, std::size_t count)
{
    while (count > 0) {
        const ssize_t written = ::write(channel, bytes, count);
        if (written <= 0)
            return;
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
}

void writeText(int channel, const std::string& text)
{
    writeAll(channel, text.data(), text.size());
}

void sleepFor(long milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// Goes on as well when the folder has gone, which is how a test ends, and when whoever has started
// the tool has: a test that has crashed leaves its folder behind, and nobody waits for the tool of
// a tool that was killed. Gives up after a while in any case.
void hold(const std::string& gate)
{
    const std::filesystem::path file(gate);
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(5);
    const pid_t parent = ::getppid();
    std::ofstream(gate + ".reached").close();
    while (!std::filesystem::exists(file) && std::filesystem::exists(file.parent_path()) &&
           ::getppid() == parent && std::chrono::steady_clock::now() < end)
        sleepFor(2);
}

// Until what has been written has been read, so that what follows arrives apart from it. Not for
// long, as the reader may be one that does not read on.
void awaitReader()
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    int unread = 0;
    while (::ioctl(1, FIONREAD, &unread) == 0 && unread > 0 &&
           std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::microseconds(20));
}

void replayFile(std::size_t block, const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string content((std::istreambuf_iterator<char>(file)), {});
    for (std::size_t at = 0; at < content.size(); at += block) {
        const std::string part = content.substr(at, block);
        writeText(1, part);
        if (at + block < content.size())
            awaitReader();
    }
}

void writeLines(long count, const std::string& text)
{
    std::string block;
    for (long i = 1; i <= count; ++i) {
        block += text + ' ' + std::to_string(i) + '\n';
        if (block.size() > 4096 || i == count) {
            writeText(1, block);
            block.clear();
        }
    }
}

void flood(long megabytes)
{
    std::string block;
    while (block.size() < 1 << 20)
        block += "The quick brown fox jumps over the lazy dog\n";
    for (long i = 0; i < megabytes; ++i) {
        writeText(1, block);
        writeText(2, block);
    }
}

void copyInput()
{
    char bytes[4096];
    for (ssize_t count; (count = ::read(0, bytes, sizeof bytes)) > 0;)
        writeAll(1, bytes, static_cast<std::size_t>(count));
}

void writeVariable(const std::string& name)
{
    const char* const value = std::getenv(name.c_str());
    writeText(1, value ? name + '=' + value + '\n' : name + "!\n");
}

sigset_t stopRequests()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGTERM);
    return signals;
}

void keepStopRequestsBack()
{
    const sigset_t signals = stopRequests();
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
}

void awaitStopRequest()
{
    const sigset_t signals = stopRequests();
    int received = 0;
    ::sigwait(&signals, &received);
}

void startChild(long milliseconds)
{
    if (::fork() == 0) {
        sleepFor(milliseconds);
        ::_exit(0);
    }
}

} // namespace

std::string ScriptedActions::firstWord(const std::string& line)
{
    return line.substr(0, line.find(' '));
}

std::string ScriptedActions::afterFirstWord(const std::string& line)
{
    const std::size_t blank = line.find(' ');
    return blank == std::string::npos ? "" : line.substr(blank + 1);
}

std::string ScriptedActions::unescaped(const std::string& text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            result += text[i];
            continue;
        }
        const char code = text[++i];
        if (code == 'x') {
            result += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            const char* const codes = "n\nr\rb\b\\\\";
            const char* const found = std::strchr(codes, code);
            result += found ? found[1] : code;
        }
    }
    return result;
}

bool ScriptedActions::perform(const std::string& line)
{
    const std::string command = firstWord(line);
    const std::string rest = afterFirstWord(line);
    std::istringstream words(rest);
    long number = 0;
    words >> number;
    std::string text;
    std::getline(words >> std::ws, text);
    if (command == "out" || command == "err")
        writeText(command == "out" ? 1 : 2, unescaped(rest));
    else if (command == "environment")
        writeVariable(rest);
    else if (command == "file")
        replayFile(static_cast<std::size_t>(number), text);
    else if (command == "lines")
        writeLines(number, text);
    else if (command == "flood")
        flood(number);
    else if (command == "hold")
        hold(unescaped(rest));
    else if (command == "sleep")
        sleepFor(number);
    else if (command == "input")
        copyInput();
    else if (command == "ignore-term")
        std::signal(SIGTERM, SIG_IGN);
    else if (command == "heed-term")
        keepStopRequestsBack();
    else if (command == "await-term")
        awaitStopRequest();
    else if (command == "child")
        startChild(number);
    else if (command == "exit")
        std::_Exit(static_cast<int>(number));
    else if (command == "crash")
        std::abort();
    else
        return command.empty();
    return true;
}
