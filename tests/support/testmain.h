// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

// Runs a test class in an application whose data and settings folder is a temporary one, so that no
// test sees what another left or what the user has.
template<typename TestClass>
int runTests(int argc, char* argv[])
{
    const QTemporaryDir dataFolder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(dataFolder.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dataFolder.path()));
    const QApplication app(argc, argv);
    TestClass test;
    return QTest::qExec(&test, argc, argv);
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
