// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cpage3.h"
#include "heldfolder.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usermouse.h"
#include "util.h"

#include <QPointer>
#include <QProcess>

namespace
{

constexpr int limitMs = 60'000;
const char* const closeArgument = "--close-while-copying";

CImageButton* buttonOf(QWidget* parent, const QString& name)
{
    return parent->findChild<CImageButton*>(name, Qt::FindDirectChildrenOnly);
}

void add(CPage3& page, const QString& folder)
{
    ModalDriver driver;
    driver.typePath(folder);
    page.OnAddDir();
}

CPage3* openPage(MainWindow& window)
{
    window.onCreate();
    return window.findChildren<CPage3*>().last();
}

// The program with a copy under way that would never end, whose close button is then clicked.
int closeWhileCopying(int argc, char* argv[])
{
    prepareProcess();
    const QApplication application(argc, argv);
    // Below the folder that the test removes, as this process never gets to it.
    const QDir folder(QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME")));
    MainWindow window(nullptr);
    window.show();
    CPage3* const page = openPage(window);
    const QString kind = argv[2];
    std::unique_ptr<HeldFolder> held;
    if (kind == "held") {
        held = std::make_unique<HeldFolder>(folder.filePath("tree"), 1000);
        add(*page, folder.filePath("tree"));
        if (!QTest::qWaitFor([&] { return held->isHolding(); }, limitMs))
            qFatal("no copy under way");
    } else {
        writeFile(folder.filePath("tree/large.bin"), {});
        QFile::resize(folder.filePath("tree/large.bin"), qint64(1) << 36);
        add(*page, folder.filePath("tree"));
        // On its way, of a length that no machine copies while the button is clicked.
        const QString copy = Util::GetTempDir() + "/tmp/tree/large.bin";
        if (!QTest::qWaitFor([&copy] { return QFileInfo(copy).size() > 0; }, limitMs) ||
            !page->stagingQueue().HasTasks())
            qFatal("no copy under way");
    }
    UserMouse::click(buttonOf(&window, "close"));
    return 1; // never reached
}

} // namespace

// The Create page in the program's own window, left in the middle of its work.
class TstCreateLeave : public TestCase
{
    Q_OBJECT

private slots:
    void backDuringACopyLeavesTheWindowAlive();
    void nextPageWaitsForTheLastOnesCopyAndStartsClean();
    void closeButtonEndsTheProcessWhileACopyRuns_data();
    void closeButtonEndsTheProcessWhileACopyRuns();

private:
    QTemporaryDir folder;
};

void TstCreateLeave::backDuringACopyLeavesTheWindowAlive()
{
    MainWindow window(nullptr);
    window.show();
    const QPointer<CPage3> page = openPage(window);
    HeldFolder held(folder.filePath("first"), 1 << 20);
    add(*page, folder.filePath("first"));
    QVERIFY(QTest::qWaitFor([&] { return held.isHolding(); }, limitMs));
    UserMouse::click(buttonOf(page, "back"));
    QVERIFY(held.isHolding());
    QVERIFY(!page->isVisible());
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(ticks > 10, limitMs);
    QVERIFY(held.isHolding());
    QVERIFY(page);
    held.release();
    QVERIFY(QTest::qWaitFor([&] { return !page; }, limitMs));
    QCOMPARE(QFileInfo(Util::GetTempDir() + "/tmp/first/rest.bin").size(), qint64(1 << 20));
}

void TstCreateLeave::nextPageWaitsForTheLastOnesCopyAndStartsClean()
{
    MainWindow window(nullptr);
    window.show();
    const QPointer<CPage3> page = openPage(window);
    HeldFolder held(folder.filePath("second"), 1 << 20);
    add(*page, folder.filePath("second"));
    QVERIFY(QTest::qWaitFor([&] { return held.isHolding(); }, limitMs));
    UserMouse::click(buttonOf(page, "back"));
    CPage3* const next = openPage(window);
    QVERIFY(next != page);
    writeFile(folder.filePath("third/a.txt"), "a");
    add(*next, folder.filePath("third"));
    QVERIFY(held.isHolding());
    QVERIFY(next->stagingQueue().HasTasks());
    held.release();
    QVERIFY(QTest::qWaitFor([&] { return !next->stagingQueue().HasTasks() && !page; }, limitMs));
    // What the last page copied after that would lie there too.
    QCOMPARE(entriesOf(Util::GetTempDir() + "/tmp"), QStringList("third"));
}

void TstCreateLeave::closeButtonEndsTheProcessWhileACopyRuns_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("copy that hangs") << "held";
    QTest::newRow("copy of a large file") << "large";
}

void TstCreateLeave::closeButtonEndsTheProcessWhileACopyRuns()
{
    QFETCH(QString, kind);
    for (int run = 0; run < 3; ++run) {
        const QTemporaryDir data;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", data.path());
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QCoreApplication::applicationFilePath(), {closeArgument, kind});
        const bool isOver = program.waitForFinished(limitMs);
        const QByteArray output = program.readAll();
        QVERIFY2(isOver, output);
        QVERIFY2(program.exitStatus() == QProcess::NormalExit, output);
        QVERIFY2(program.exitCode() == 0, output);
        QVERIFY2(!output.contains("destroy") && !output.contains("QThread"), output);
    }
}

int main(int argc, char* argv[])
{
    if (argc == 3 && qstrcmp(argv[1], closeArgument) == 0)
        return closeWhileCopying(argc, argv);
    return runTests<TstCreateLeave>(argc, argv);
}

#include "tst_createleave.moc"
