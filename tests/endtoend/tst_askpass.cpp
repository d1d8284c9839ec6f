// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "prompttexts.h"
#include "testcase.h"
#include "testmain.h"
#include "virtualscreen.h"

#include <sys/stat.h>
#include <unistd.h>

namespace
{

const QString programFolder = KORVEX_PROGRAM_FOLDER;
constexpr int patience = 120000; // ms

struct Result
{
    int code;
    QByteArray output;
    QByteArray errors;
};

Result resultOf(QProcess& process)
{
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput(), process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// The scripts and the program as they are shipped, on a screen of their own, with real keys.
class TstAskpass : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void scriptsAreProgramsForEverybody_data();
    void scriptsAreProgramsForEverybody();
    void scriptAsksInItsLanguageAndTellsThePassword_data();
    void scriptAsksInItsLanguageAndTellsThePassword();
    void oddPasswordComesOutByteForByte_data();
    void oddPasswordComesOutByteForByte();
    void escapeTellsNothing();
    void lostScreenTellsNothing();
    void passwordIsNowhereElse();
    void scriptFindsTheProgramThroughLinksAndBlanks();
    void withoutScreenItFailsAtOnce_data();
    void withoutScreenItFailsAtOnce();

private:
    // Starts the script as sudo does, on the given screen.
    static void startPrompt(QProcess& prompt, const QString& script, const VirtualScreen& on);

    VirtualScreen screen;
};

void TstAskpass::initTestCase()
{
    QCOMPARE(screen.start(), QString());
}

void TstAskpass::startPrompt(QProcess& prompt, const QString& script, const VirtualScreen& on)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    environment.remove("WAYLAND_DISPLAY");
    environment.insert("DISPLAY", on.display());
    // The most that the toolkit can be made to tell.
    environment.insert("QT_LOGGING_RULES", "*.debug=true");
    environment.insert("XKB_LOG_LEVEL", "debug");
    prompt.setProcessEnvironment(environment);
    prompt.start(script, {"[sudo] password for user: "});
}

void TstAskpass::scriptsAreProgramsForEverybody_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("code");
    QTest::newRow("English") << "askpass.js"
                             << "en";
    for (const char* const code :
         {"zh", "ja", "fr", "de", "es", "pt", "pl", "it", "ru", "nl", "sv"})
        QTest::newRow(code) << QString("askpass_%1.js").arg(code) << code;
}

void TstAskpass::scriptsAreProgramsForEverybody()
{
    QFETCH(QString, script);
    struct stat status{};
    QCOMPARE(::stat(qPrintable(programFolder + "/translations/" + script), &status), 0);
    QCOMPARE(status.st_mode & mode_t(07777), mode_t(0755));
}

void TstAskpass::scriptAsksInItsLanguageAndTellsThePassword_data()
{
    scriptsAreProgramsForEverybody_data();
}

void TstAskpass::scriptAsksInItsLanguageAndTellsThePassword()
{
    QFETCH(QString, script);
    QFETCH(QString, code);
    Companion prompt;
    startPrompt(prompt, programFolder + "/translations/" + script, screen);
    QVERIFY(screen.hasFocus(PromptTexts::of(code).title));
    screen.type("s3cret Word");
    screen.press("Return");
    const Result result = resultOf(prompt);
    QCOMPARE(result.output, QByteArray("s3cret Word\n"));
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 0);
}

void TstAskpass::oddPasswordComesOutByteForByte_data()
{
    QTest::addColumn<QString>("keyboard");
    QTest::addColumn<QString>("password");
    QTest::newRow("empty") << "us"
                           << "";
    QTest::newRow("blanks around") << "us"
                                   << "  a  b ";
    QTest::newRow("signs") << "us"
                           << "\"'`\\$(id)%s!~";
    QTest::newRow("dashes") << "us"
                            << "--help";
    QTest::newRow("German") << "de" << QString::fromUtf8("Paßwörter, äußerst");
    QTest::newRow("Russian") << "ru" << QString::fromUtf8("Пароль");
}

void TstAskpass::oddPasswordComesOutByteForByte()
{
    QFETCH(QString, keyboard);
    QFETCH(QString, password);
    QVERIFY(screen.useKeyboard(keyboard));
    Companion prompt;
    startPrompt(prompt, programFolder + "/translations/askpass.js", screen);
    QVERIFY(screen.hasFocus(PromptTexts::of("en").title));
    screen.type(password);
    screen.press("KP_Enter");
    const Result result = resultOf(prompt);
    QVERIFY(screen.useKeyboard("us"));
    QCOMPARE(result.output, password.toUtf8() + '\n');
    QCOMPARE(result.code, 0);
}

void TstAskpass::escapeTellsNothing()
{
    Companion prompt;
    startPrompt(prompt, programFolder + "/translations/askpass.js", screen);
    QVERIFY(screen.hasFocus(PromptTexts::of("en").title));
    screen.type("secret");
    screen.press("Escape");
    const Result result = resultOf(prompt);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 1);
}

void TstAskpass::lostScreenTellsNothing()
{
    VirtualScreen fading;
    QCOMPARE(fading.start(), QString());
    Companion prompt;
    startPrompt(prompt, programFolder + "/translations/askpass.js", fading);
    QVERIFY(fading.hasFocus(PromptTexts::of("en").title));
    fading.type("secret");
    fading.stop();
    const Result result = resultOf(prompt);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.code, 1);
}

void TstAskpass::passwordIsNowhereElse()
{
    Companion prompt;
    startPrompt(prompt, programFolder + "/translations/askpass_de.js", screen);
    QVERIFY(screen.hasFocus(PromptTexts::of("de").title));
    screen.type("s3cret");
    const QString process = QString("/proc/%1/").arg(prompt.processId());
    const QByteArray arguments = contents(process + "cmdline");
    QVERIFY(arguments.contains("askpass") && arguments.endsWith(QByteArray("de\0", 3)));
    QVERIFY(!arguments.contains("s3cret"));
    // Only root can read it at all.
    const QByteArray environment = contents(process + "environ");
    QCOMPARE(environment.isEmpty(), ::geteuid() != 0);
    QVERIFY(!environment.contains("s3cret"));
    QVERIFY(contents(process + "limits").simplified().contains("Max core file size 0 0 bytes"));
    screen.press("Return");
    QCOMPARE(resultOf(prompt).output, QByteArray("s3cret\n"));
}

void TstAskpass::scriptFindsTheProgramThroughLinksAndBlanks()
{
    const QTemporaryDir folder;
    const QString tree = folder.path() + "/it's a \"tree\" $HOME ü";
    const QString script = tree + "/translations/askpass_sv.js";
    QVERIFY(QDir().mkpath(tree + "/translations") && QDir().mkpath(folder.path() + "/-away"));
    QVERIFY(QFile::copy(programFolder + "/translations/askpass_sv.js", script));
    QVERIFY(QFile::copy(programFolder + "/askpass", tree + "/askpass"));
    const QString link = folder.path() + "/-away/other name";
    QVERIFY(QFile::link("../" + QDir(tree).dirName() + "/translations/askpass_sv.js", link));
    Companion prompt;
    prompt.setWorkingDirectory("/");
    startPrompt(prompt, link, screen);
    QVERIFY(screen.hasFocus(PromptTexts::of("sv").title));
    screen.press("Escape");
    QCOMPARE(resultOf(prompt).code, 1);
}

void TstAskpass::withoutScreenItFailsAtOnce_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value");
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("X server that is not there") << "DISPLAY"
                                                << ":54321";
    QTest::newRow("Wayland server that is not there") << "WAYLAND_DISPLAY"
                                                      << "wayland-none";
    QTest::newRow("unknown platform") << "QT_QPA_PLATFORM"
                                      << "none-such";
}

void TstAskpass::withoutScreenItFailsAtOnce()
{
    QFETCH(QString, variable);
    QFETCH(QString, value);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"})
        environment.remove(name);
    if (!variable.isEmpty())
        environment.insert(variable, value);
    Companion prompt;
    prompt.setProcessEnvironment(environment);
    prompt.start(programFolder + "/translations/askpass_fr.js", {"[sudo] password for user: "});
    const Result result = resultOf(prompt);
    QCOMPARE(result.code, 1);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray("askpass: The password prompt cannot be shown. "
                                       "Is there a display?\n"));
}

KORVEX_TEST_MAIN(TstAskpass)
#include "tst_askpass.moc"
