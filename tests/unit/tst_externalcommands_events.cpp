// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QThread>
#include <QTimer>

// The caller's events go on while a short command runs. Scripts stand in for the tools.
class TstExternalCommandsEvents : public FolderTest
{
    Q_OBJECT

public slots:
    void tick() { ++ticks; }
    void callWithinACall() { inner = Util::callexternapp(script("sleep 0.6; printf inner"), {}); }
    void callAndQuitMeanwhile();

private slots:
    void init();

    void eventsGoOnMeanwhile();
    void callWithinACallWorks();
    void quittingTheApplicationMeanwhileIsHarmless();
    void callFromAnotherThread();
    void callsFromSeveralThreadsAtOnce();

private:
    // Path of an executable script with this body.
    QString script(const QByteArray& body);

    int scripts = 0;
    int ticks = 0;
    QString inner;
    QString outer;
};

namespace
{

// Makes one call after another from a thread of its own.
class Caller : public QThread
{
public:
    explicit Caller(const QString& program)
        : tool(program)
    {
    }
    QStringList results;

protected:
    void run() override
    {
        for (int i = 0; i < 10; ++i)
            results.append(Util::callexternapp(tool, QString::number(i)));
    }

private:
    QString tool;
};

} // namespace

void TstExternalCommandsEvents::init()
{
    FolderTest::init();
    ticks = 0;
    inner.clear();
    outer.clear();
}

QString TstExternalCommandsEvents::script(const QByteArray& body)
{
    return writeScript(folder->filePath(QString("tool%1").arg(++scripts)), body);
}

void TstExternalCommandsEvents::callAndQuitMeanwhile()
{
    QTimer::singleShot(50, qApp, SLOT(quit()));
    outer = Util::callexternapp(script("sleep 0.3; printf outer"), {});
    inner = Util::callexternapp(script("printf later"), {});
}

void TstExternalCommandsEvents::eventsGoOnMeanwhile()
{
    QTimer timer;
    QVERIFY(connect(&timer, SIGNAL(timeout()), this, SLOT(tick())));
    timer.start(10);
    Util::callexternapp(script("sleep 0.5"), {});
    QVERIFY(ticks >= 5);
    ticks = 0;
    Util::callexternappWriteToStdin(script("sleep 0.5"), {}, "x");
    QVERIFY(ticks >= 5);
}

void TstExternalCommandsEvents::callWithinACallWorks()
{
    // The inner call begins while the outer one waits, and ends after its tool.
    QTimer::singleShot(100, this, SLOT(callWithinACall()));
    QCOMPARE(Util::callexternapp(script("sleep 0.4; printf outer"), {}), QString("outer"));
    QCOMPARE(inner, QString("inner"));
}

void TstExternalCommandsEvents::quittingTheApplicationMeanwhileIsHarmless()
{
    QTimer::singleShot(0, this, SLOT(callAndQuitMeanwhile()));
    QApplication::exec();
    QCOMPARE(outer, QString("outer"));
    QCOMPARE(inner, QString("later"));
}

void TstExternalCommandsEvents::callFromAnotherThread()
{
    Caller caller(script("printf %s \"$1\""));
    caller.start();
    QVERIFY(caller.wait());
    QCOMPARE(caller.results.join(','), QString("0,1,2,3,4,5,6,7,8,9"));
}

void TstExternalCommandsEvents::callsFromSeveralThreadsAtOnce()
{
    const QString tool = script("printf %s \"$1\"");
    Caller first(tool);
    Caller second(tool);
    first.start();
    second.start();
    QCOMPARE(Util::callexternapp(tool, "own"), QString("own"));
    QVERIFY(first.wait() && second.wait());
    QCOMPARE(first.results.join(','), QString("0,1,2,3,4,5,6,7,8,9"));
    QCOMPARE(second.results, first.results);
}

KORVEX_TEST_MAIN(TstExternalCommandsEvents)

#include "tst_externalcommands_events.moc"
