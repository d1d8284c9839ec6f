// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testmain.h"
#include "usbwritercommand.h"
#include "util.h"

#include <QProcess>
#include <QTemporaryDir>

// The command lines and the boot menu of a USB disk, word by word.
class TstUsbWriterCommand : public TestCase
{
    Q_OBJECT

private slots:
    void partitionDisk_data();
    void partitionDisk();
    void bootMenu();
    void copyImage();
    void splitInstallWim();
    void tooLarge_data();
    void tooLarge();
    void bootToolIsRunByTheFixedText();
    void shellHandsOverWords_data();
    void shellHandsOverWords();
    void programFolderWithQuotesIsTakenAsItIs();
};

namespace
{

const qint64 fourGibibytes = 4294967296LL;

// What the boot tool and sudo get from the real shell. A script in the place of sudo writes its
// arguments, one per line, behind the prompt that its environment names.
QStringList wordsFromShell(const QTemporaryDir& folder, QStringList arguments)
{
    QFile sudo(folder.filePath("sudo"));
    if (!sudo.open(QIODevice::WriteOnly) ||
        sudo.write("#!/bin/sh\nprintf '%s\\n' \"$SUDO_ASKPASS\" \"$@\"\n") < 0)
        return {};
    sudo.close();
    sudo.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // Where its output goes is no business of this test.
    arguments.last().remove(" > /tmp/system.log 2>&1");
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", folder.path() + ':' + environment.value("PATH"));
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(folder.path());
    shell.start("/bin/bash", arguments);
    shell.waitForFinished();
    QStringList words = QString::fromUtf8(shell.readAllStandardOutput()).split('\n');
    words.removeLast();
    return words;
}

} // namespace

void TstUsbWriterCommand::partitionDisk_data()
{
    QTest::addColumn<QString>("fileSystem");
    QTest::addColumn<QString>("label");
    QTest::addColumn<qint64>("diskTotal");
    QTest::addColumn<QString>("fileSystemArgument");
    QTest::addColumn<QString>("nameArgument");

    QTest::newRow("FAT32") << "FAT32"
                           << "STICK" << fourGibibytes * 4 << "FAT32"
                           << "STICK";
    QTest::newRow("FAT32 on a small disk") << "FAT32"
                                           << "STICK" << 1LL << "FAT32"
                                           << "STICK";
    QTest::newRow("FAT below 4 GiB") << "FAT"
                                     << "S" << fourGibibytes - 1 << "\"MS-DOS FAT16\""
                                     << "S";
    QTest::newRow("FAT at 4 GiB") << "FAT"
                                  << "S" << fourGibibytes << "FAT32"
                                  << "S";
    QTest::newRow("FAT above 4 GiB") << "FAT"
                                     << "S" << fourGibibytes + 1 << "FAT32"
                                     << "S";
    QTest::newRow("other case is no FAT") << "fat"
                                          << "S" << 1LL << "fat"
                                          << "S";
    QTest::newRow("empty label") << "FAT32" << QString() << 1LL << "FAT32"
                                 << "NONAME";
    QTest::newRow("blanks in the label") << "FAT32"
                                         << "MY  STICK" << 1LL << "FAT32"
                                         << "MY  STICK";
}

void TstUsbWriterCommand::partitionDisk()
{
    QFETCH(QString, fileSystem);
    QFETCH(QString, label);
    QFETCH(qint64, diskTotal);
    QFETCH(QString, fileSystemArgument);
    QFETCH(QString, nameArgument);
    QCOMPARE(partitionDiskArguments("/dev/disk2", fileSystem, label, diskTotal),
             (QStringList{"partitionDisk", "/dev/disk2", "1", "MBR", fileSystemArgument,
                          nameArgument, "R"}));
}

void TstUsbWriterCommand::bootMenu()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("syslinux.cfg");
    QVERIFY(Util::WriteMulLinesToFile(bootMenuLines(), path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("default boot\nLABEL boot\nMENU LABEL boot\n"
                                        "COM32 /syslinux/chain.c32\nAPPEND fs ntldr=/bootmgr\n"));
}

void TstUsbWriterCommand::copyImage()
{
    QCOMPARE(copyImageArguments("/a b/\"c\".iso", "/Volumes/MY STICK", false),
             (QStringList{"x", "-bsp2", "-y", "-o/Volumes/MY STICK/", "/a b/\"c\".iso"}));
    QCOMPARE(copyImageArguments("w.iso", "/V", true),
             (QStringList{"x", "-bsp2", "-xr!install.wim", "-y", "-o/V/", "w.iso"}));
}

void TstUsbWriterCommand::splitInstallWim()
{
    QCOMPARE(splitInstallWimArguments("/Volumes/WIN", "/Volumes/MY STICK"),
             (QStringList{"split", "/Volumes/WIN/sources/install.wim",
                          "/Volumes/MY STICK/sources/install.swm", " 3800"}));
    QCOMPARE(wimlibProgram(), Util::GetCurrentExePath() + "/wimlib-imagex/wimlib-imagex");
}

void TstUsbWriterCommand::tooLarge_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<bool>("isTooLarge");

    QTest::newRow("missing") << 0LL << false;
    QTest::newRow("one byte less") << fourGibibytes - 1 << false;
    QTest::newRow("4 GiB") << fourGibibytes << true;
    QTest::newRow("40 GiB") << fourGibibytes * 10 << true;
}

void TstUsbWriterCommand::tooLarge()
{
    QFETCH(qint64, bytes);
    QTEST(isTooLargeForFat(bytes), "isTooLarge");
}

void TstUsbWriterCommand::bootToolIsRunByTheFixedText()
{
    QCOMPARE(bootToolArguments("/A pp/translations/askpass_de.js", "/A pp/mkbootable", "/dev/disk2",
                               "/Volumes/MY STICK_1.2-3"),
             (QStringList{"-c", "SUDO_ASKPASS='/A pp/translations/askpass_de.js' sudo --askpass "
                                "'/A pp/mkbootable' /dev/disk2 /Volumes/MY STICK_1.2-3 > "
                                "/tmp/system.log 2>&1"}));
    QVERIFY(bootToolArguments("/p", "/t", "/d", "/v", "/dev/null")
                .last()
                .endsWith(" > /dev/null 2>&1"));
    // What looks like a place for the next value is none.
    QCOMPARE(bootToolArguments("/%2", "/%3", "/%4", "/%1").last(),
             QString("SUDO_ASKPASS='/%2' sudo --askpass '/%3' /%4 /%1 > /tmp/system.log 2>&1"));
}

// The mount point is named after the label, which the user types: the shell takes nothing in it for
// its own, and hands over its words as they are.
void TstUsbWriterCommand::shellHandsOverWords_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QStringList>("words");

    QTest::newRow("plain") << "STICK" << QStringList{"STICK"};
    QTest::newRow("blank") << "MY STICK" << QStringList{"MY", "STICK"};
    QTest::newRow("blanks in a row") << "MY   STICK" << QStringList{"MY  ", "STICK"};
    for (const QString label :
         {"A;touch x", "$(touch x)", "`touch x`",    "A&touch x", "A|touch x", "A>x",
          "A'B",       "A\"B",       "A\\B",         "$HOME",     "~",         "*",
          "?",         "[A]",        "{A,B}",        "(A)",       "#A",        "!A",
          "A=B",       "^A",         "\u00c4\u00d6", "\u4e2d",    "A\tB",      "%1"})
        QTest::newRow(qPrintable(label)) << label << label.split(' ');
}

void TstUsbWriterCommand::shellHandsOverWords()
{
    QFETCH(QString, label);
    QFETCH(QStringList, words);
    const QTemporaryDir folder;
    const QString volumes = folder.path() + "/v/";
    words.first().prepend(volumes);
    QCOMPARE(wordsFromShell(folder, bootToolArguments("/p", "/t", "/dev/disk2", volumes + label)),
             (QStringList{"/p", "--askpass", "/t", "/dev/disk2"} + words));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{"sudo"});
}

void TstUsbWriterCommand::programFolderWithQuotesIsTakenAsItIs()
{
    const QTemporaryDir folder;
    QCOMPARE(wordsFromShell(folder, bootToolArguments("/it's/p q", "/it's/t", "/dev/disk2", "/v")),
             (QStringList{"/it's/p q", "--askpass", "/it's/t", "/dev/disk2", "/v"}));
}

KORVEX_TEST_MAIN(TstUsbWriterCommand)
#include "tst_usbwritercommand.moc"
