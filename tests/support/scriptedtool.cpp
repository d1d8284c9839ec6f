// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// A stand-in for any command-line tool. It does what the file "<own path>.script" says, line by
// line, and appends its arguments to "<own path>.calls", each call ended by "end" and every record
// by a zero byte. Without a script it ends at once.
//
//   out TEXT       writes to standard output; \n \r \b \\ and \xHH stand for bytes
//   err TEXT       the same to standard error
//   file N PATH    writes a file to standard output in blocks of N bytes
//   lines N TEXT   writes N lines, each TEXT and its number
//   flood N        writes N MB to each channel, as fast as it can
//   sleep MS
//   input          copies standard input to standard output until its end
//   environment N  writes the variable N as N=value, or N! when it is not set
//   ignore-term    ignores polite stop requests from here on
//   child MS       starts a child that holds the output channels open for so long
//   exit N / crash
//   only ARGUMENT  the lines that follow are for calls with this argument; alone, for all again

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
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

std::string unescaped(const std::string& text)
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

void sleepFor(long milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void replayFile(std::size_t block, const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string content((std::istreambuf_iterator<char>(file)), {});
    for (std::size_t at = 0; at < content.size(); at += block) {
        const std::string part = content.substr(at, block);
        writeText(1, part);
        if (at + block < content.size())
            sleepFor(2);
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

void startChild(long milliseconds)
{
    if (::fork() == 0) {
        sleepFor(milliseconds);
        ::_exit(0);
    }
}

void execute(const std::string& line)
{
    std::istringstream words(line);
    std::string command;
    long number = 0;
    words >> command;
    const std::string rest = line.size() > command.size() ? line.substr(command.size() + 1) : "";
    if (command == "out" || command == "err") {
        writeText(command == "out" ? 1 : 2, unescaped(rest));
        return;
    }
    if (command == "environment") {
        writeVariable(rest);
        return;
    }
    words >> number;
    std::string text;
    std::getline(words >> std::ws, text);
    if (command == "file")
        replayFile(static_cast<std::size_t>(number), text);
    else if (command == "lines")
        writeLines(number, text);
    else if (command == "flood")
        flood(number);
    else if (command == "sleep")
        sleepFor(number);
    else if (command == "input")
        copyInput();
    else if (command == "ignore-term")
        std::signal(SIGTERM, SIG_IGN);
    else if (command == "child")
        startChild(number);
    else if (command == "exit")
        std::_Exit(static_cast<int>(number));
    else if (command == "crash")
        std::abort();
}

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
        else if (isMeant)
            execute(line);
    }
    return 0;
}
