// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <pthread.h>

// Fails a test program that ends before its last function is through: what it tests has called
// exit(0), which would count as passed.
class EndOfTests
{
public:
    EndOfTests()
    {
        std::atexit(insist);
        std::at_quick_exit(insist);
    }
    static void reach() { isReached() = true; }

private:
    static bool& isReached()
    {
        static bool reached = false;
        return reached;
    }
    static void insist()
    {
        if (isReached())
            return;
        std::fputs("The test program was left before its last function had ended.\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
};

// Lets a child process die of a signal that comes before it has become the tool. The test library's
// own handler, which it has until then, may wait for ever in it for a lock that another thread
// holds.
class SignalsOfChildren
{
public:
    static void mend() { pthread_atfork(blockAll, restore, mendChild); }

private:
    static sigset_t& earlier()
    {
        thread_local sigset_t mask;
        return mask;
    }
    static void blockAll()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &earlier());
    }
    static void restore() { pthread_sigmask(SIG_SETMASK, &earlier(), nullptr); }
    static void mendChild()
    {
        std::signal(SIGTERM, SIG_DFL);
        restore();
    }
};

// Runs a test class in an application whose data and settings folder is a temporary one, so that no
// test sees what another left or what the user has.
template<typename TestClass>
int runTests(int argc, char* argv[])
{
    const EndOfTests end;
    SignalsOfChildren::mend();
    const QTemporaryDir dataFolder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(dataFolder.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dataFolder.path()));
    const QApplication app(argc, argv);
    TestClass test;
    const int failures = QTest::qExec(&test, argc, argv);
    EndOfTests::reach();
    return failures;
}

// The main function of a test executable.
#define KORVEX_TEST_MAIN(TestClass) KORVEX_TEST_MAIN_AFTER((void)0, TestClass)

// The same with something to do before there is an application, as the program itself has.
#define KORVEX_TEST_MAIN_AFTER(preparation, TestClass)                                             \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        preparation;                                                                               \
        return runTests<TestClass>(argc, argv);                                                    \
    }
