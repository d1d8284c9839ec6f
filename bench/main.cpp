// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Measures the program against the bare tools it runs, on input made at run time, and prints a
// table. See README.md beside this file.
//
//   korvex-bench [listing] [extract] [create] [staging] [edit] [runner] [window]
//
// All of them without a name.

#include "bench.h"
#include "startup.h"
#include "statistics.h"

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>

namespace
{

struct Subject
{
    const char* name;
    void (*measure)(const QString& folder);
};

const Subject subjects[] = {
    {"listing", benchListing}, {"extract", benchExtract}, {"create", benchCreate},
    {"staging", benchStaging}, {"edit", benchEdit},       {"runner", benchRunner},
    {"window", benchWindow},
};

bool isSubject(const QString& name)
{
    return std::any_of(std::begin(subjects), std::end(subjects),
                       [&](const Subject& subject) { return name == subject.name; });
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules("default.debug=false");
    const QString mode = argc > 1 ? QString(argv[1]) : QString();
    if (mode == "--first-paint" || mode == "--first-paint-of-an-empty-window")
        return firstPaint(argc, argv, mode == "--first-paint");
    if (mode == "--memory")
        return memoryOfImage(argc, argv);

    const QTemporaryDir folder(QDir::tempPath() + "/bench-XXXXXX");
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path() + "/data"));
    prepareProcess();
    const QApplication application(argc, argv);
    setApplicationLook();
    const QStringList wanted = QCoreApplication::arguments().mid(1);
    for (const QString& name : wanted) {
        if (!isSubject(name))
            giveUp("There is nothing called " + name);
    }
    for (const Subject& subject : subjects) {
        if (wanted.isEmpty() || wanted.contains(subject.name))
            subject.measure(folder.path());
    }
    return EXIT_SUCCESS;
}
