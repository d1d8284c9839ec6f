// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"
#include "util.h"

#include <QThread>
#include <QTimer>

// The caller's events go on while a short command runs. Scripts stand in for the tools.
class TstExternalCommandsEvents : public FolderTest
{
    Q_OBJECT

public slots:
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
    // The same of one that tells that it runs, and waits for release() before it does this.
    QString heldScript(const QByteArray& body);
    static bool isHeld(const QString& tool) { return QFile::exists(tool + ".runs"); }
    static void release(const QString& tool) { writeFile(tool + ".go", {}); }

    int scripts = 0;
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
    inner.clear();
    outer.clear();
}

QString TstExternalCommandsEvents::script(const QByteArray& body)
{
    return writeScript(folder->filePath(QString("tool%1").arg(++scripts)), body);
}

QString TstExternalCommandsEvents::heldScript(const QByteArray& body)
{
    return script(": >\"$0.runs\"; while [ ! -e \"$0.go\" ]; do sleep 0.01; done\n" + body);
}

void TstExternalCommandsEvents::callAndQuitMeanwhile()
{
    const QString tool = heldScript("printf outer");
    const Trigger quit([&tool] { return isHeld(tool); },
                       [&tool] {
                           qApp->quit();
                           release(tool);
                       });
    outer = Util::callexternapp(tool, {});
    inner = Util::callexternapp(script("printf later"), {});
}

void TstExternalCommandsEvents::eventsGoOnMeanwhile()
{
    // The tool ends only because of an event.
    const QString tool = heldScript("printf released");
    const Trigger event([&tool] { return isHeld(tool); }, [&tool] { release(tool); });
    QCOMPARE(Util::callexternapp(tool, {}), QString("released"));
    const QString reader = heldScript("cat");
    const Trigger next([&reader] { return isHeld(reader); }, [&reader] { release(reader); });
    QCOMPARE(Util::callexternappWriteToStdin(reader, {}, "x"), QString("x"));
}

void TstExternalCommandsEvents::callWithinACallWorks()
{
    // The inner call begins while the outer one waits, and ends after its tool.
    const QString outerTool = heldScript("printf outer; : >\"$0.done\"");
    const QString innerTool = heldScript("printf inner");
    const Trigger begin([&] { return isHeld(outerTool); },
                        [&] { inner = Util::callexternapp(innerTool, {}); });
    const Trigger meanwhile([&] { return isHeld(innerTool); }, [&] { release(outerTool); });
    const Trigger end([&] { return QFile::exists(outerTool + ".done"); },
                      [&] { release(innerTool); });
    QCOMPARE(Util::callexternapp(outerTool, {}), QString("outer"));
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
