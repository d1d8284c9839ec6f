// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QRegularExpression>

#include <thread>
#include <vector>

// The diagnostic log and the writing of lists.
class TstUtilLog : public TestCase
{
    Q_OBJECT

private slots:
    void nothingIsLoggedWithoutTheSwitch();
    void aLineIsTheTimeABlankTheTextAndALineEnd();
    void linesAreAppended();
    void theSwitchIsAskedAtEveryCall();
    void lineBreaksStayAndOnlyTheFirstLineCarriesTheTime();
    void everyCharacterSurvives();
    void aHugeTextIsOneLine();
    void aLogThatCannotBeOpenedLosesTheLineSilently();
    void listKeepsItsOrder();
    void anEmptyListMakesNoLog();
    void severalThreadsWriteWholeLines();

    void listBecomesFile_data();
    void listBecomesFile();
    void listReplacesTheFile();
    void listForAnImpossiblePathIsFalse();
    void aFullDiskIsNotNoticed();
};

void TstUtilLog::nothingIsLoggedWithoutTheSwitch()
{
    QFile::remove(LogSwitch::logPath());
    Util::WriteLog("unseen");
    QVERIFY(!QFile::exists(LogSwitch::logPath()));
}

void TstUtilLog::aLineIsTheTimeABlankTheTextAndALineEnd()
{
    const LogSwitch on;
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    Util::WriteLog("hello");
    const QString log = readFile(LogSwitch::logPath());
    const QRegularExpression line("\\A(\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d) hello\\n\\z");
    const QRegularExpressionMatch match = line.match(log);
    QVERIFY2(match.hasMatch(), qPrintable(log));
    const QDateTime time = QDateTime::fromString(match.captured(1), "yyyy-MM-dd hh:mm:ss");
    QVERIFY(time >= before && time <= QDateTime::currentDateTime());
}

void TstUtilLog::linesAreAppended()
{
    const LogSwitch on;
    Util::WriteLog("one");
    Util::WriteLog("");
    Util::WriteLog("three");
    QCOMPARE(LogSwitch::texts(), QStringList({"one", "", "three"}));
}

void TstUtilLog::theSwitchIsAskedAtEveryCall()
{
    {
        const LogSwitch on;
        Util::WriteLog("seen");
    }
    Util::WriteLog("unseen");
    QCOMPARE(LogSwitch::texts(), QStringList("seen"));
}

void TstUtilLog::lineBreaksStayAndOnlyTheFirstLineCarriesTheTime()
{
    const LogSwitch on;
    Util::WriteLog("first\nsecond\r\n\nlast");
    const QByteArray log = readFile(LogSwitch::logPath());
    QCOMPARE(log.mid(QByteArray("yyyy-MM-dd hh:mm:ss ").size()),
             QByteArray("first\nsecond\r\n\nlast\n"));
}

void TstUtilLog::everyCharacterSurvives()
{
    const LogSwitch on;
    const QString text = QString::fromUtf8("-n 100% %1 \"q\" \\n é e\xcc\x81 光盘 😀");
    Util::WriteLog(text);
    QCOMPARE(LogSwitch::texts(), QStringList(text));
}

void TstUtilLog::aHugeTextIsOneLine()
{
    const LogSwitch on;
    const QString text(5'000'000, 'x');
    Util::WriteLog(text);
    QCOMPARE(LogSwitch::texts(), QStringList(text));
}

void TstUtilLog::aLogThatCannotBeOpenedLosesTheLineSilently()
{
    const LogSwitch on;
    QVERIFY(QDir().mkpath(LogSwitch::logPath()));
    Util::WriteLog("lost");
    QVERIFY(entriesOf(LogSwitch::logPath()).isEmpty());
    QVERIFY(QDir().rmdir(LogSwitch::logPath()));
    QCOMPARE(debugLines(), QStringList());
}

void TstUtilLog::listKeepsItsOrder()
{
    const LogSwitch on;
    Util::WriteLog("before");
    Util::WriteLogLines({"b", "a", "c"});
    QCOMPARE(LogSwitch::texts(), QStringList({"before", "b", "a", "c"}));
}

void TstUtilLog::anEmptyListMakesNoLog()
{
    const LogSwitch on;
    Util::WriteLogLines({});
    QVERIFY(!QFile::exists(LogSwitch::logPath()));
}

void TstUtilLog::severalThreadsWriteWholeLines()
{
    const LogSwitch on;
    const int threads = 8;
    const int lines = 100;
    // From a few bytes to more than any buffer on the way holds.
    const auto text = [](int thread, int line) {
        return QString::number(thread) + '-' + QString::number(line) + '-' +
               QString(line * 300, static_cast<char>('a' + thread));
    };
    std::vector<std::thread> writers;
    for (int thread = 0; thread < threads; ++thread)
        writers.emplace_back([=] {
            for (int line = 0; line < lines; ++line)
                Util::WriteLog(text(thread, line));
        });
    for (std::thread& writer : writers)
        writer.join();

    const QStringList written = LogSwitch::texts();
    QCOMPARE(written.size(), threads * lines);
    for (int thread = 0; thread < threads; ++thread) {
        const QStringList own = written.filter(QRegularExpression(QString("^%1-").arg(thread)));
        QCOMPARE(own.size(), lines);
        for (int line = 0; line < lines; ++line)
            QVERIFY2(own.at(line) == text(thread, line), qPrintable(own.at(line).left(40)));
    }
}

void TstUtilLog::listBecomesFile_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("none") << QStringList() << QByteArray();
    QTest::newRow("one") << QStringList("a") << QByteArray("a\n");
    QTest::newRow("order kept, empty line kept")
        << QStringList({"b", "", "a", "b"}) << QByteArray("b\n\na\nb\n");
    QTest::newRow("blanks kept") << QStringList({"  x  ", "\t"}) << QByteArray("  x  \n\t\n");
    QTest::newRow("unicode") << QStringList(QString::fromUtf8("光é")) << QByteArray("光é\n");
    QTest::newRow("line break inside") << QStringList("a\nb") << QByteArray("a\nb\n");
}

void TstUtilLog::listBecomesFile()
{
    QFETCH(QStringList, lines);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("-list \"光\" .txt"));
    QVERIFY(Util::WriteMulLinesToFile(lines, path));
    QTEST(readFile(path), "content");
    QVERIFY(QFile::exists(path));
}

void TstUtilLog::listReplacesTheFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("list");
    writeFile(path, "a much longer content than the new one\n");
    QVERIFY(Util::WriteMulLinesToFile({"new"}, path));
    QCOMPARE(readFile(path), QByteArray("new\n"));
}

void TstUtilLog::listForAnImpossiblePathIsFalse()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath("file"), "content");
    for (const QString& path : {folder.path(), folder.filePath("file/below"),
                                folder.filePath("missing/list"), QString("/syslinux.cfg/x")}) {
        QVERIFY2(!Util::WriteMulLinesToFile({"a"}, path), qPrintable(path));
        const QString line = debugLines().last();
        QVERIFY(line.contains("Open failed."));
        QVERIFY(line.contains(path));
    }
    QCOMPARE(entriesOf(folder.path()), QStringList("file"));
    QCOMPARE(readFile(folder.filePath("file")), QByteArray("content"));
}

void TstUtilLog::aFullDiskIsNotNoticed()
{
    QVERIFY(Util::WriteMulLinesToFile({"a"}, "/dev/full"));
}

KORVEX_TEST_MAIN(TstUtilLog)

#include "tst_util_log.moc"
