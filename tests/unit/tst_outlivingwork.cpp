// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"
#include "hdiutil.h"
#include "outlivingwork.h"
#include "printing.h"
#include "rootvolumes.h"
#include "standins.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>
#include <QThread>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

// Work that goes on where the tool that does it is killed.
class TstOutlivingWork : public FolderTest
{
    Q_OBJECT

private slots:
    void exitCodeIsReturned();
    void crashIsAFailure();
    void everythingIsSaidOnce();
    void workIsAwaitedUntilTheToolIsKilled();
    void imageMountedForNobodyIsUnmounted();
    void imageThatNobodyHearsOfIsUnmounted();

private:
    // Runs a tool in a process of its own and kills it as soon as the file "begun" is there; makes
    // the file "killed" then.
    void killWhenBegun(const std::function<int()>& tool) const;
};

void TstOutlivingWork::killWhenBegun(const std::function<int()>& tool) const
{
    const pid_t process = ::fork();
    if (process == 0)
        ::_exit(tool());
    QVERIFY(process > 0);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path("begun")), 30'000);
    QCOMPARE(::kill(process, SIGKILL), 0);
    QCOMPARE(::waitpid(process, nullptr, 0), process);
    writeFile(path("killed"), "");
}

void TstOutlivingWork::exitCodeIsReturned()
{
    QCOMPARE(runOutliving([](const auto& isAwaited) { return isAwaited() ? 23 : 0; }), 23);
}

void TstOutlivingWork::crashIsAFailure()
{
    QCOMPARE(runOutliving([](const auto&) { return ::raise(SIGKILL); }), 1);
}

void TstOutlivingWork::everythingIsSaidOnce()
{
    const QStringList lines = spokenLines([] {
        std::fputs("before\n", stdout);
        runOutliving([](const auto&) {
            std::fputs("within\n", stdout);
            return 0;
        });
        say("after");
    });
    QCOMPARE(lines, QStringList({"before", "within", "after"}));
}

void TstOutlivingWork::workIsAwaitedUntilTheToolIsKilled()
{
    killWhenBegun([this] {
        return runOutliving([this](const auto& isAwaited) {
            const QByteArray before = isAwaited() ? "awaited" : "abandoned";
            writeFile(path("begun"), before);
            while (!QFile::exists(path("killed")))
                QThread::msleep(10);
            writeFile(path("after"), isAwaited() ? "awaited" : "abandoned");
            return 0;
        });
    });
    QTRY_COMPARE_WITH_TIMEOUT(readFile(path("after")), QByteArray("abandoned"), 30'000);
    QCOMPARE(readFile(path("begun")), QByteArray("awaited"));
}

void TstOutlivingWork::imageMountedForNobodyIsUnmounted()
{
    const StandIns tools;
    tools.add("mount", QString("touch '%1'; until [ -e '%2' ]; do sleep 0.01; done")
                           .arg(path("begun"), path("killed"))
                           .toUtf8());
    tools.add("umount");
    writeFile(path("x.iso"), "x");
    RootVolumes volumes(path("media"), path("images"));
    killWhenBegun([&] { return hdiutilTool({"mount", path("x.iso")}, volumes); });
    QTRY_COMPARE_WITH_TIMEOUT(tools.calls().size(), 2, 30'000);
    QTRY_COMPARE_WITH_TIMEOUT(QDir(path("images")).entryList({"image-*"}), QStringList(), 30'000);
    const QString mountPoint = tools.calls().first().section('|', -1);
    QCOMPARE(tools.calls().last(), "umount|--lazy|--|" + mountPoint);
}

// As when the program has ended and the tool has not.
void TstOutlivingWork::imageThatNobodyHearsOfIsUnmounted()
{
    const StandIns tools;
    tools.add("mount");
    tools.add("umount");
    writeFile(path("x.iso"), "x");
    RootVolumes volumes(path("media"), path("images"));
    int ends[2] = {};
    QCOMPARE(::pipe(ends), 0);
    ::close(ends[0]);
    const pid_t process = ::fork();
    if (process == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::_exit(hdiutilTool({"mount", path("x.iso")}, volumes));
    }
    ::close(ends[1]);
    int status = 0;
    QCOMPARE(::waitpid(process, &status, 0), process);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 1);
    QCOMPARE(tools.calls().size(), 2);
    QVERIFY(tools.calls().last().startsWith("umount|--lazy|--|" + path("images/image-")));
    QCOMPARE(QDir(path("images")).entryList({"image-*"}), QStringList());
}

KORVEX_TEST_MAIN(TstOutlivingWork)
#include "tst_outlivingwork.moc"
