// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "commandtext.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolenvironment.h"

#include <QTextCodec>

#include <dirent.h>
#include <thread>

// The environment of the tools and the meaning of local 8-bit text. CTest runs this a second time
// in an environment that speaks neither UTF-8 nor English.
class TstToolEnvironment : public TestCase
{
    Q_OBJECT

private slots:
    void localeIsFixed_data();
    void localeIsFixed();
    void everythingElseIsInherited();
    void parentIsNotChanged();
    void environmentIsTakenOnce();
    void threadsGetTheSame();
    void toolSeesTheEnvironment();
    void fileNamesAreUtf8();
    void toolsArgumentsAndProgramAreUtf8();
    void outputIsUtf8();
};

namespace
{

// Set before the application object exists, as the process entry does, and against a locale that
// says otherwise.
const bool codecSet = [] {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    useUtf8Codec();
    return true;
}();

const QString oddName = QString::fromUtf8("光盘 é e\u0301 😀");

} // namespace

void TstToolEnvironment::localeIsFixed_data()
{
    QTest::addColumn<QStringList>("parent");

    QTest::newRow("nothing set") << QStringList();
    QTest::newRow("C for all") << QStringList("LC_ALL=C");
    QTest::newRow("German for all") << QStringList({"LC_ALL=de_DE.UTF-8", "LANGUAGE=de:en"});
    QTest::newRow("Latin-1") << QStringList({"LANG=de_DE", "LC_CTYPE=de_DE.ISO-8859-1"});
    QTest::newRow("each alone") << QStringList(
        {"LC_CTYPE=C", "LC_NUMERIC=fr_FR.UTF-8", "LC_MESSAGES=ja_JP.UTF-8", "LANGUAGE=ja"});
    QTest::newRow("empty values") << QStringList({"LC_ALL=", "LC_CTYPE=", "LANGUAGE="});
}

void TstToolEnvironment::localeIsFixed()
{
    QFETCH(QStringList, parent);
    QProcessEnvironment environment;
    for (const QString& entry : parent)
        environment.insert(entry.section('=', 0, 0), entry.section('=', 1));
    const QProcessEnvironment tools = toolEnvironmentFrom(environment);
    QVERIFY(!tools.contains("LC_ALL"));
    QVERIFY(!tools.contains("LANGUAGE"));
#ifdef Q_OS_MACOS
    QCOMPARE(tools.value("LC_CTYPE"), QString("UTF-8"));
#else
    QCOMPARE(tools.value("LC_CTYPE"), QString("C.UTF-8"));
#endif
    QCOMPARE(tools.value("LC_NUMERIC"), QString("C"));
    QCOMPARE(tools.value("LC_MESSAGES"), QString("C"));
    QCOMPARE(tools.value("LANG"), environment.value("LANG"));
}

void TstToolEnvironment::everythingElseIsInherited()
{
    QProcessEnvironment parent;
    parent.insert("PATH", "/a b:/c");
    parent.insert("LANG", "sv_SE.UTF-8");
    parent.insert("LC_TIME", "sv_SE.UTF-8");
    parent.insert("EMPTY", "");
    parent.insert("ODD", oddName + "=\n");
    QProcessEnvironment tools = toolEnvironmentFrom(parent);
    for (const char* fixed : {"LC_CTYPE", "LC_NUMERIC", "LC_MESSAGES"})
        tools.remove(fixed);
    QCOMPARE(tools, parent);
}

void TstToolEnvironment::parentIsNotChanged()
{
    QProcessEnvironment parent;
    parent.insert("LC_ALL", "C");
    toolEnvironmentFrom(parent);
    QCOMPARE(parent.toStringList(), QStringList("LC_ALL=C"));
}

void TstToolEnvironment::environmentIsTakenOnce()
{
    const QProcessEnvironment before = toolEnvironment();
    qputenv("KORVEX_LATER", "1");
    const QProcessEnvironment after = toolEnvironment();
    qunsetenv("KORVEX_LATER");
    QCOMPARE(after, before);
    QCOMPARE(before.value("PATH"), QString::fromUtf8(qgetenv("PATH")));
}

void TstToolEnvironment::threadsGetTheSame()
{
    QProcessEnvironment seen[4];
    std::thread threads[4];
    for (int i = 0; i < 4; ++i)
        threads[i] = std::thread([&seen, i] { seen[i] = toolEnvironment(); });
    for (std::thread& thread : threads)
        thread.join();
    for (const QProcessEnvironment& environment : seen)
        QCOMPARE(environment, toolEnvironment());
}

void TstToolEnvironment::toolSeesTheEnvironment()
{
    const QList<QByteArray> lines = runCommandText("/usr/bin/env").split('\n');
    for (const QString& entry : toolEnvironment().toStringList())
        QVERIFY2(entry.contains('\n') || lines.contains(entry.toUtf8()), qPrintable(entry));
    QVERIFY(lines.contains("LC_NUMERIC=C"));
    for (const QByteArray& line : lines)
        QVERIFY2(!line.startsWith("LC_ALL=") && !line.startsWith("LANGUAGE="), line);
    // The tool takes two bytes for the one character that they are.
    const QTemporaryDir folder;
    writeFile(folder.filePath("é"), {});
    QCOMPARE(runCommandText("/bin/ls -q " + folder.path()), QByteArray("é\n"));
}

void TstToolEnvironment::fileNamesAreUtf8()
{
    QVERIFY(codecSet);
    const QTemporaryDir folder;
    writeFile(folder.filePath(oddName), "content");
    QCOMPARE(entriesOf(folder.path()), QStringList(oddName));

    QByteArray name;
    DIR* const raw = opendir(folder.path().toLatin1().constData());
    QVERIFY(raw);
    while (const dirent* entry = readdir(raw))
        if (entry->d_name[0] != '.')
            name = entry->d_name;
    closedir(raw);
    QCOMPARE(name, oddName.toUtf8());
}

void TstToolEnvironment::toolsArgumentsAndProgramAreUtf8()
{
    const QTemporaryDir folder;
    const QString tool = writeScript(folder.filePath(oddName), "printf %s \"$1\"");
    QCOMPARE(runCommandText('"' + tool + "\" \"" + oddName + '"'), oddName.toUtf8());
}

void TstToolEnvironment::outputIsUtf8()
{
    QCOMPARE(QString::fromLocal8Bit(oddName.toUtf8()), oddName);
    QCOMPARE(oddName.toLocal8Bit(), oddName.toUtf8());
}

KORVEX_TEST_MAIN(TstToolEnvironment)

#include "tst_toolenvironment.moc"
