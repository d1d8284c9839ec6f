// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbwritefixture.h"

#include <QDir>
#include <QScopedValueRollback>

// Running the boot tool as the administrator: which prompt asks for the password, what becomes of a
// refusal, and what the shell on the way makes of hostile names.
class TstCBurnDialogUsbPrompt : public TestCase
{
    Q_OBJECT

private slots:
    void promptSpeaksTheLanguage_data();
    void promptSpeaksTheLanguage();
    void missingPromptIsReplacedByTheEnglishOne();
    void allPromptsMissingEndInSuccess();
    void refusedPasswordIsPassedOverInSilence();
    void onePasswordIsAskedFor();
    void debugStreamTellsLanguageFolderAndCommand();
    void bootToolMissing();
    void mountPointIsSplitAtBlanks();
    void shellTakesMountPointsAsTheyAre_data();
    void shellTakesMountPointsAsTheyAre();
};

namespace
{

const QString success("Burning Successfully...");

QString promptOf(const UsbWriteFixture& fixture)
{
    for (const DriveCall& call : fixture.calls()) {
        if (call.program == "sudo")
            return call.environment.value("SUDO_ASKPASS");
    }
    return QString();
}

QList<QStringList> withoutBootTool(QList<QStringList> run)
{
    for (int i = run.size() - 1; i >= 0; --i) {
        if (run.at(i).first() == "mkbootable")
            run.removeAt(i);
    }
    return run;
}

void expectPrompt(const UsbWriteFixture& fixture, const QString& name)
{
    QCOMPARE(promptOf(fixture), UsbWriteFixture::promptPath(name));
}

} // namespace

void TstCBurnDialogUsbPrompt::promptSpeaksTheLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("prompt");

    QTest::newRow("Chinese") << int(QLocale::Chinese) << "askpass_zh.js";
    QTest::newRow("English") << int(QLocale::English) << "askpass.js";
    QTest::newRow("French") << int(QLocale::French) << "askpass_fr.js";
    QTest::newRow("German") << int(QLocale::German) << "askpass_de.js";
    QTest::newRow("Italian") << int(QLocale::Italian) << "askpass_it.js";
    QTest::newRow("Japanese") << int(QLocale::Japanese) << "askpass_ja.js";
    QTest::newRow("Polish") << int(QLocale::Polish) << "askpass_pl.js";
    QTest::newRow("Portuguese") << int(QLocale::Portuguese) << "askpass_pt.js";
    QTest::newRow("Russian") << int(QLocale::Russian) << "askpass_ru.js";
    QTest::newRow("Spanish") << int(QLocale::Spanish) << "askpass_es.js";
    QTest::newRow("Swedish") << int(QLocale::Swedish) << "askpass_sv.js";
    QTest::newRow("Dutch, known by its country") << int(QLocale::Netherlands) << "askpass_nl.js";
    QTest::newRow("none chosen") << 0 << "askpass.js";
    QTest::newRow("without a prompt") << int(QLocale::Korean) << "askpass.js";
    QTest::newRow("no language") << int(QLocale::LastLanguage) + 1 << "askpass.js";
}

// What the whole run makes of it is the same for all languages.
void TstCBurnDialogUsbPrompt::promptSpeaksTheLanguage()
{
    QFETCH(int, language);
    QFETCH(QString, prompt);
    const QScopedValueRollback<qint32> chosen(golbalLangue, language);
    UsbWriteFixture fixture;
    QStringList arguments;
    fixture.page->getParameterlist(arguments, "/dev/disk2", "/Volumes/STICK");
    QCOMPARE(arguments,
             (QStringList{"-c", "SUDO_ASKPASS='" + UsbWriteFixture::promptPath(prompt) +
                                    "' sudo --askpass '" + UsbWriteFixture::bootTool() +
                                    "' /dev/disk2 /Volumes/STICK > /tmp/system.log 2>&1"}));
}

void TstCBurnDialogUsbPrompt::missingPromptIsReplacedByTheEnglishOne()
{
    const QScopedValueRollback<qint32> chosen(golbalLangue, QLocale::German);
    UsbWriteFixture fixture;
    QCOMPARE(fixture.write().value(1), success);
    expectPrompt(fixture, "askpass_de.js");
    QVERIFY(QFile::remove(UsbWriteFixture::promptPath("askpass_de.js")));
    UsbWriteFixture::writePrompt("askpass_de.jsx");
    QStringList arguments{"before"};
    fixture.page->getParameterlist(arguments, "d", "m");
    QCOMPARE(arguments.size(), 3);
    QCOMPARE(arguments.first(), QString("before"));
    QVERIFY2(arguments.last().contains(UsbWriteFixture::promptPath("askpass.js") + '\''),
             qPrintable(arguments.last()));
}

void TstCBurnDialogUsbPrompt::allPromptsMissingEndInSuccess()
{
    UsbWriteFixture fixture;
    QVERIFY(QDir(UsbWriteFixture::programFolder() + "/translations").removeRecursively());
    QCOMPARE(fixture.write().value(1), success);
    expectPrompt(fixture, "askpass.js");
    QCOMPARE(fixture.commands(), withoutBootTool(fixture.wholeRun(fixture.image(), false)));
}

void TstCBurnDialogUsbPrompt::refusedPasswordIsPassedOverInSilence()
{
    UsbWriteFixture fixture;
    UsbWriteFixture::writePrompt("askpass.js", "");
    QCOMPARE(fixture.write().value(1), success);
    QCOMPARE(fixture.commands(), withoutBootTool(fixture.wholeRun(fixture.image(), false)));
    for (const DriveCall& call : fixture.calls()) {
        QCOMPARE(call.passwords, 0);
        QCOMPARE(call.refusals, call.program == "sudo" ? 1 : 0);
    }
    QVERIFY(QFileInfo::exists(fixture.stick() + "/syslinux.cfg"));
}

void TstCBurnDialogUsbPrompt::onePasswordIsAskedFor()
{
    UsbWriteFixture fixture;
    QCOMPARE(fixture.write().value(1), success);
    int passwords = 0;
    for (const DriveCall& call : fixture.calls()) {
        passwords += call.passwords;
        QCOMPARE(call.refusals, 0);
    }
    QCOMPARE(passwords, 1);
}

void TstCBurnDialogUsbPrompt::debugStreamTellsLanguageFolderAndCommand()
{
    const QScopedValueRollback<qint32> chosen(golbalLangue, QLocale::Polish);
    UsbWriteFixture fixture;
    QCOMPARE(fixture.write().value(1), success);
    const QString lines = debugLines().join('\n');
    QVERIFY(lines.contains("start golbal langue*** QLocale::Polish"));
    QVERIFY(lines.contains("translations path *** \"" + UsbWriteFixture::programFolder() +
                           "/translations/\""));
    QVERIFY(
        lines.contains("(\"-c\", \"SUDO_ASKPASS='" + UsbWriteFixture::promptPath("askpass_pl.js")));
}

void TstCBurnDialogUsbPrompt::bootToolMissing()
{
    UsbWriteFixture fixture;
    const QString tool = UsbWriteFixture::bootTool();
    QVERIFY(QFile::rename(tool, tool + ".away"));
    const QStringList texts = fixture.write();
    QVERIFY(QFile::rename(tool + ".away", tool));
    QCOMPARE(texts.value(1), success);
    QCOMPARE(fixture.commands(), withoutBootTool(fixture.wholeRun(fixture.image(), false)));
}

void TstCBurnDialogUsbPrompt::mountPointIsSplitAtBlanks()
{
    UsbWriteFixture fixture;
    UsbDisk disk;
    disk.mountPoint = fixture.path("MY USB STICK");
    QVERIFY(QDir().mkpath(disk.mountPoint));
    fixture.changeDisk(disk);
    QCOMPARE(fixture.write().value(1), success);
    QCOMPARE(fixture.drives.callsOf("mkbootable"),
             (QList<QStringList>{{fixture.device, fixture.path("MY"), "USB", "STICK"}}));
    // Everything else gets it whole.
    QVERIFY(QFileInfo::exists(disk.mountPoint + "/syslinux.cfg"));
    QVERIFY(fixture.drives.callsOf("7z").first().contains("-o" + disk.mountPoint + '/'));
}

void TstCBurnDialogUsbPrompt::shellTakesMountPointsAsTheyAre_data()
{
    QTest::addColumn<QString>("name");

    for (const char* const name :
         {"$(touch$IFS%1)`touch$IFS%1`", "(sub)A&B;A|B>C<D", "IT'S\"A\\b", "~*?[a]{b,c}!#$HOME"})
        QTest::newRow(name) << QString(name);
    QTest::newRow("Unicode") << QString::fromUtf8("ÄÖ日本");
}

void TstCBurnDialogUsbPrompt::shellTakesMountPointsAsTheyAre()
{
    QFETCH(QString, name);
    UsbWriteFixture fixture;
    // Names that would leave a trace have no "/": it would appear in the shell's own folder.
    UsbDisk disk;
    disk.mountPoint = fixture.path(name.replace("%1", "trace"));
    QVERIFY(QDir().mkpath(disk.mountPoint));
    fixture.changeDisk(disk);
    fixture.drives.lend("touch");
    fixture.drives.on("mkbootable", {"..."}, {});
    QCOMPARE(fixture.write().value(1), success);
    QCOMPARE(fixture.drives.callsOf("mkbootable"),
             (QList<QStringList>{{fixture.device, disk.mountPoint}}));
    QVERIFY(!QFileInfo::exists("trace"));
    QCOMPARE(entriesOf(disk.mountPoint), QStringList("syslinux.cfg"));
}

KORVEX_TEST_MAIN(TstCBurnDialogUsbPrompt)
#include "tst_cburndialog_usbprompt.moc"
