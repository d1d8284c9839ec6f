// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "secret.h"
#include "testcase.h"
#include "testmain.h"

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

class TstSecret : public TestCase
{
    Q_OBJECT

private slots:
    void wipingReachesEveryoneWhoSharesTheText();
    void emptyTextsCanBeWiped();
    void lineIsWrittenWhole_data();
    void lineIsWrittenWhole();
    void lineForNobodyFails();
    void memoryIsKeptPrivate();
};

void TstSecret::wipingReachesEveryoneWhoSharesTheText()
{
    QString text = QString("sec%1").arg("ret");
    const QString sameText = text;
    Secret::wipe(text);
    QVERIFY(text.isEmpty());
    QCOMPARE(sameText, QString(6, QChar(0)));

    QByteArray bytes = QString("secret").toUtf8();
    const QByteArray sameBytes = bytes;
    Secret::wipe(bytes);
    QVERIFY(bytes.isEmpty());
    QCOMPARE(sameBytes, QByteArray(6, '\0'));
}

void TstSecret::emptyTextsCanBeWiped()
{
    QString nullText;
    QByteArray emptyBytes("");
    Secret::wipe(nullText);
    Secret::wipe(emptyBytes);
    QVERIFY(nullText.isEmpty());
    QVERIFY(emptyBytes.isEmpty());
}

void TstSecret::lineIsWrittenWhole_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("plain") << QByteArray("secret");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("bytes") << QByteArray(" \xC3\xA4\\n\"%s ");
    QTest::newRow("more than a pipe holds") << QByteArray(300000, 'x');
}

void TstSecret::lineIsWrittenWhole()
{
    QFETCH(QByteArray, text);
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    bool written = false;
    std::thread writer([&] {
        written = Secret::writeLine(ends[1], text);
        ::close(ends[1]);
    });
    QFile reader;
    const bool opened = reader.open(ends[0], QFile::ReadOnly, QFile::AutoCloseHandle);
    const QByteArray received = reader.readAll();
    writer.join();
    QVERIFY(opened);
    QVERIFY(written);
    QCOMPARE(received, text + '\n');
}

void TstSecret::lineForNobodyFails()
{
    std::signal(SIGPIPE, SIG_IGN);
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    ::close(ends[0]);
    QVERIFY(!Secret::writeLine(ends[1], "secret"));
    ::close(ends[1]);
    QVERIFY(!Secret::writeLine(-1, ""));
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    QVERIFY(full >= 0);
    QVERIFY(!Secret::writeLine(full, "secret"));
    ::close(full);
}

void TstSecret::memoryIsKeptPrivate()
{
    QCOMPARE(::prctl(PR_GET_DUMPABLE, 0L, 0L, 0L, 0L), 1);
    QVERIFY(Secret::keepMemoryPrivate());
    QCOMPARE(::prctl(PR_GET_DUMPABLE, 0L, 0L, 0L, 0L), 0);
    rlimit limit{1, 1};
    QCOMPARE(::getrlimit(RLIMIT_CORE, &limit), 0);
    QCOMPARE(limit.rlim_cur, rlim_t(0));
    QCOMPARE(limit.rlim_max, rlim_t(0));
}

KORVEX_TEST_MAIN(TstSecret)
#include "tst_secret.moc"
