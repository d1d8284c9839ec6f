// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cpage3.h"
#include "editsavefixture.h"
#include "imagemaker.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolstopper.h"
#include "usermouse.h"
#include "util.h"

#include <QProcess>

#include <csignal>

namespace
{

constexpr int limitMs = 60'000;
const char* const closeArgument = "--close-while-unpacking";
const QString success = "Save ISO file successfully!";

CImageButton* buttonOf(QWidget* parent, const QString& name)
{
    return parent->findChild<CImageButton*>(name, Qt::FindDirectChildrenOnly);
}

// The Edit page of the program's own window, with an image that is being unpacked.
CPage4* openAndLoad(MainWindow& window, const QString& image)
{
    window.onEdit();
    CPage4* const page = window.findChildren<CPage4*>().last();
    ModalDriver driver;
    driver.typePath(image);
    page->OnLoadISO();
    const CImageButton* const load = buttonOf(page, "loadiso");
    if (!QTest::qWaitFor([load] { return load->isEnabled(); }, limitMs))
        qFatal("not listed");
    return page;
}

bool isUnpackedInPart()
{
    return !entriesOf(EditPageFixture::workFolder()).isEmpty();
}

bool isAlive(int process)
{
    return ::kill(process, 0) == 0;
}

// The program with an image that is being unpacked, whose close button is then clicked.
int closeWhileUnpacking(int argc, char* argv[])
{
    prepareProcess();
    const QApplication application(argc, argv);
    MainWindow window(nullptr);
    window.show();
    ToolStopper archiver("x");
    openAndLoad(window, QString::fromLocal8Bit(argv[2]));
    std::printf("archiver %d\n", archiver.catchWhen(isUnpackedInPart));
    std::fflush(stdout);
    UserMouse::click(buttonOf(&window, "close"));
    return 1; // never reached
}

} // namespace

// The Edit page left while its image is being unpacked.
class TstEditLife : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void backAndTheSameImageAgain();
    void createPageOpenedAtOnceStartsWithAnEmptyFolder();
    void nextLoadIsRightWhateverAnArchiverThatWasLeftDoes_data();
    void nextLoadIsRightWhateverAnArchiverThatWasLeftDoes();

private:
    QTemporaryDir folder;
    QString image;
    QMap<QString, QByteArray> content;
};

void TstEditLife::initTestCase()
{
    setApplicationLook();
    const QString tree = folder.filePath("tree");
    for (int i = 0; i < 40; ++i)
        writeRandomFile(tree + QString("/folder %1/some.bin").arg(i), 50'000, quint32(i));
    image = folder.filePath("image.iso");
    makeImage(tree, image);
    content = hashesBelow(tree);
}

void TstEditLife::backAndTheSameImageAgain()
{
    QPointer<CPage4> first;
    {
        const EditSaveFixture left;
        first = left.page;
        left.browseWhileUnpacking(image);
        QVERIFY(left.page->isWorking());
        left.press("back");
        QVERIFY(childProcesses().isEmpty());
        const EditSaveFixture fixture;
        QVERIFY(fixture.browse(image));
        QCOMPARE(fixture.save(folder.filePath("saved.iso")), success);
        QVERIFY(!first);
    }
    QVERIFY(EditSaveFixture::contentOf(folder.filePath("saved.iso")) == content);
}

void TstEditLife::createPageOpenedAtOnceStartsWithAnEmptyFolder()
{
    MainWindow window(nullptr);
    window.show();
    ToolStopper archiver("x");
    const QPointer<CPage4> page = openAndLoad(window, image);
    archiver.catchWhen(isUnpackedInPart);
    QVERIFY(page->isWorking());
    UserMouse::click(buttonOf(page, "back"));
    window.onCreate();
    CPage3* const next = window.findChildren<CPage3*>().last();
    QVERIFY(QTest::qWaitFor([&] { return !page && !next->stagingQueue().HasTasks(); }, limitMs));
    QVERIFY(childProcesses().isEmpty());
    QCOMPARE(entriesOf(Util::GetTempDir() + "/tmp"), QStringList());
}

void TstEditLife::nextLoadIsRightWhateverAnArchiverThatWasLeftDoes_data()
{
    QTest::addColumn<bool>("isGoneBefore");
    QTest::newRow("before the next load") << true;
    QTest::newRow("during the next load") << false;
}

// The archiver goes on without the program, to its end or until it notices that nobody reads what
// it writes any more; whatever it does, the next load ends with the whole image and nothing else.
void TstEditLife::nextLoadIsRightWhateverAnArchiverThatWasLeftDoes()
{
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {closeArgument, image});
    QVERIFY2(program.waitForFinished(limitMs), program.readAllStandardError());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    const QByteArray printed = program.readAllStandardOutput();
    const int archiver = printed.mid(printed.indexOf("archiver ") + 9).trimmed().toInt();
    QVERIFY2(archiver > 0, printed);
    QVERIFY(isAlive(archiver));

    QFETCH(bool, isGoneBefore);
    const auto isGone = [archiver] { return !isAlive(archiver); };
    if (isGoneBefore) {
        ::kill(archiver, SIGCONT);
        QVERIFY(QTest::qWaitFor(isGone, limitMs));
    }
    const EditSaveFixture fixture;
    if (isGoneBefore) {
        QVERIFY(fixture.browse(image));
    } else {
        const int next = fixture.browseWhileUnpacking(image);
        ::kill(archiver, SIGCONT);
        QVERIFY(QTest::qWaitFor(isGone, limitMs));
        ::kill(next, SIGCONT);
    }
    QVERIFY(fixture.waitUntilWorked());
    QVERIFY(hashesBelow(EditPageFixture::workFolder()) == content);
}

int main(int argc, char* argv[])
{
    if (argc == 3 && qstrcmp(argv[1], closeArgument) == 0)
        return closeWhileUnpacking(argc, argv);
    return runTests<TstEditLife>(argc, argv);
}

#include "tst_editlife.moc"
