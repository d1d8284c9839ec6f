// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "programrun.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QTemporaryDir>

#include <unistd.h>

// The program as it is shipped, on what it must refuse.
class TstMkbootable : public TestCase
{
    Q_OBJECT

private slots:
    void refusesBadArguments_data();
    void refusesBadArguments();
    void refusesWhatIsNoDisk();
    void runsNoProgramOfTheCallers();
};

namespace
{

constexpr int limitMs = 60000;

ProgramResult mkbootable(const QStringList& arguments)
{
    return runProgram(KORVEX_MKBOOTABLE, arguments, limitMs);
}

} // namespace

void TstMkbootable::refusesBadArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("said");
    QTest::newRow("none") << QStringList{} << QByteArray("Usage: mkbootable DISK MOUNT-POINT");
    QTest::newRow("no mount point") << QStringList{"/dev/null"} << QByteArray("No mount point");
    QTest::newRow("relative") << QStringList{"/dev/null", "a b"} << QByteArray("absolute path");
}

void TstMkbootable::refusesBadArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, said);
    const ProgramResult result = mkbootable(arguments);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errorOutput.contains(said), result.errorOutput.constData());
    QCOMPARE(result.errorOutput.count('\n'), 1);
}

void TstMkbootable::refusesWhatIsNoDisk()
{
    const ProgramResult result = mkbootable({"/dev/null", "/media/user/MY", "STICK"});
    QCOMPARE(result.exitCode, 1);
    const bool isRoot = ::geteuid() == 0;
    QCOMPARE(result.output, isRoot ? QByteArray("Checking /dev/null\n") : QByteArray());
    QCOMPARE(result.errorOutput,
             isRoot
                 ? QByteArray("mkbootable: Checking /dev/null failed: lsblk failed with exit code "
                              "32: lsblk: /dev/null: not a block device\n")
                 : QByteArray("mkbootable: Only root can make a disk bootable\n"));
}

void TstMkbootable::runsNoProgramOfTheCallers()
{
    const QTemporaryDir folder;
    writeScript(folder.filePath("lsblk"), "touch '" + folder.filePath("called").toUtf8() + "'");
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8() + ':' + before);
    // It is the first on the path for all others.
    const ProgramResult other = runProgram("lsblk", {}, limitMs);
    QCOMPARE(other.error, QString());
    QVERIFY(QFile::remove(folder.filePath("called")));
    const ProgramResult result = mkbootable({"/dev/null", "/media/user/X"});
    qputenv("PATH", before);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(!QFile::exists(folder.filePath("called")));
}

KORVEX_TEST_MAIN(TstMkbootable)
#include "tst_mkbootable.moc"
