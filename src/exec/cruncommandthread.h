// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMutex>
#include <QProcess>
#include <QStringList>
#include <QThread>

#include <atomic>
#include <memory>

class CProcess;
class DeliveryPacer;

// Runs one tool as a child process on a worker thread of its own and hands every piece of its
// output to the page that started it. The one way in which pages run long tools.
//
// Use, from the user-interface thread: construct without parent, SetRunCmd(), connect
// standoutputline() and sigfinished(), start(). The runner lives in its worker thread while that
// runs and comes back when it ends; deleteLater() is safe at any time.
// The tool gets no input: it reads the end of it at once, whatever it asks.
//
//   idle --start()--> running --tool ends--> sigfinished() --> idle, may be started again, also
//                        |                                    from a slot on sigfinished()
//                        |
//                        +--terminate()--> stopped: no sigfinished(), `running` stays true
//
// A stopped worker leaves by itself: it asks the tool to stop, kills the tool and whatever the tool
// started half a second later, and returns. Nothing waits for it meanwhile. The destructor does,
// and only a worker that is stuck for many seconds is cancelled there.
class CRunCommandThread : public QThread
{
    Q_OBJECT

public:
    explicit CRunCommandThread(QObject* parent = nullptr);
    ~CRunCommandThread() override;

    // The program and its arguments; no shell, nothing needs quoting. Without arguments, cmd is a
    // whole command line that is split at blanks, double quotes grouping. Before start().
    void SetRunCmd(QString cmd, QStringList args);
    // Kept for the caller, the runner does not consult it.
    void SetNeedRealOutput(bool need);
    // Does nothing while a run is in progress. When the last one is only just ending, in whatever
    // way, the next one begins after it.
    void start(QThread::Priority priority = QThread::InheritPriority);
    // Processes the caller's events until the tool has finished and all that it printed has been
    // received. Not after terminate().
    void waitFinished();
    // Stops the tool and ends the run without sigfinished(). Returns at once.
    void terminate();

    // True from start() until the tool has finished normally. To be read by any thread.
    std::atomic<bool> running{false};

    // Set before start(): cmd is an AppleScript text for the system's script runner.
    bool useOsascript = false;
    // Set before start(): no signal for each piece; outputLines is there after sigfinished().
    bool collectOutput = false;
    QStringList outputLines;
    // Set before start(): the output is a list, of which a reader needs whole lines. One that is
    // unfinished is left alone until the tool has ended, however long the tool pauses in it.
    bool wholeLines = false;
    // The system's script runner.
    QString scriptRunner = "/usr/bin/osascript";

public slots:
    // Also frees a runner that was given a command and never started: it lives in a thread that
    // handles no events.
    void deleteLater();
    // Kills the current process at once; the run then ends as if the tool had.
    void OnTerminateProcess();
    void sloterrorstart(QProcess::ProcessError error);
    void onFinished(int exitCode);
    void onReadOutput();
    void onReadErrorOutput();

signals:
    // One piece of output, raw: a line with its line end, or what a carriage return set apart.
    void standoutputline(QString line);
    void sigfinished();
    void terminateprocess();

protected:
    void run() override;

private:
    enum class Ending
    {
        None,
        Finished,
        Stopped
    };
    // Which of the output that no line feed ends yet is read.
    enum class Unfinished
    {
        Leave,
        Take,
        TakeAll
    };

    bool isStopped() const;
    bool isBegun();
    bool isBegunAgain();
    void runTool();
    void startProcess(CProcess& child);
    void logCommand() const;
    void waitForEnd(CProcess& child);
    void endStopped(CProcess& child);
    void readPieces(CProcess& child, Unfinished unfinished);
    bool hasReadable(CProcess& child, Unfinished unfinished) const;
    QByteArray readLine(CProcess& child, Unfinished unfinished) const;
    void deliver(QStringList& pieces);
    void collectLines(CProcess& child);

    QString cmd;
    QStringList args;
    bool needRealOutput = false;
    std::atomic<CProcess*> process{nullptr};
    QString localCodePage;
    std::atomic<bool> started{false};

    // Guards what follows: what has been asked of the worker, and whether it still takes requests.
    QMutex requests;
    bool isWorking = false;
    bool isWantedAgain = false;
    // Whichever of the tool's end and terminate() comes first decides how the run ends.
    std::atomic<Ending> ending{Ending::None};

    std::atomic<bool> killRequested{false};
    bool outputArrived = false;
    // Stays in the thread that made the runner, which is where the runner goes back to.
    std::unique_ptr<DeliveryPacer> pacer;
};
