// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "createpagefixture.h"
#include "heldfolder.h"
#include "imagemaker.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QAbstractButton>
#include <QMessageBox>

#include <csignal>
#include <sys/resource.h>

namespace
{

const QString success = "Create ISO successfully!";
constexpr qint64 dataBytes = 3 << 20;

// No file of this process or of the tools it starts can grow beyond so many bytes while one lives:
// a disk that is full, for every user.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit lower{bytes, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &lower);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before{};
};

} // namespace

// What goes wrong outside the program. The page tells nothing of it, yet it can be used again.
class TstCreateTrouble : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void outputThatCannotBeWritten_data();
    void outputThatCannotBeWritten();
    void diskThatIsFull();
    void diskThatIsFullForTheImage();
    void diskThatIsFullWhileStagingCutsTheFile();
    void fileThatVanishesBecomesAnEmptyFolderAsTheQueueTakesItForOne();
    void existingImageIsReplaced();
    void existingImageIsKeptWhenTheUserSaysNo();
    void stagingFolderThatVanishes();
    void missingTool();

private:
    // Chooses an image that is there already, and answers the question whether to replace it.
    void createOver(const QString& image, QMessageBox::StandardButton answer) const;
    // A complete run gives the right image.
    void verifyUsable() const;

    std::unique_ptr<CreatePageFixture> fixture;
    QByteArray content;
};

void TstCreateTrouble::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    writeRandomFile(fixture->path("data.bin"), dataBytes, 1);
    content = readFile(fixture->path("data.bin"));
    fixture->addFiles({fixture->path("data.bin")});
    QVERIFY(fixture->waitUntilStaged());
}

void TstCreateTrouble::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCreateTrouble::createOver(const QString& image, QMessageBox::StandardButton answer) const
{
    ModalDriver driver;
    driver.typePath(image);
    driver.run("QMessageBox", [answer](QWidget* widget) {
        qobject_cast<QMessageBox*>(widget)->button(answer)->click();
    });
    if (answer == QMessageBox::No)
        driver.key("QFileDialog", Qt::Key_Escape);
    fixture->page->OnCreate();
}

void TstCreateTrouble::verifyUsable() const
{
    QVERIFY(fixture->isUsable());
    fixture->startCreating(fixture->path("right.iso"));
    QCOMPARE(fixture->waitForMessage(), success);
    extractImage(fixture->path("right.iso"), fixture->path("right"));
    QCOMPARE(entriesOf(fixture->path("right")), QStringList("data.bin"));
    QVERIFY(readFile(fixture->path("right/data.bin")) == content);
}

void TstCreateTrouble::outputThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("below a file") << "data.bin/out.iso";
    QTest::newRow("folder that is not there") << "nowhere/out.iso";
    QTest::newRow("below /proc") << "/proc/out.iso";
}

void TstCreateTrouble::outputThatCannotBeWritten()
{
    QFETCH(QString, path);
    const QString image = path.startsWith('/') ? path : fixture->path(path);
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), success);
    QVERIFY(!QFileInfo::exists(image));
    verifyUsable();
}

void TstCreateTrouble::diskThatIsFull()
{
    createOver("/dev/full", QMessageBox::Yes);
    QCOMPARE(fixture->waitForMessage(), success);
    verifyUsable();
}

void TstCreateTrouble::diskThatIsFullForTheImage()
{
    const QString image = fixture->path("out.iso");
    {
        const FileSizeLimit limit(1 << 20);
        fixture->startCreating(image);
        QCOMPARE(fixture->waitForMessage(), success);
    }
    // What has been written stays.
    QCOMPARE(QFileInfo(image).size(), qint64(1 << 20));
    verifyUsable();
}

void TstCreateTrouble::diskThatIsFullWhileStagingCutsTheFile()
{
    writeRandomFile(fixture->path("more.bin"), dataBytes, 2);
    {
        const FileSizeLimit limit(1 << 20);
        fixture->addFiles({fixture->path("more.bin")});
        QVERIFY(fixture->waitUntilStaged());
    }
    QCOMPARE(QFileInfo(CreatePageFixture::stagingFolder() + "/more.bin").size(), qint64(1 << 20));
    fixture->startCreating(fixture->path("cut.iso"));
    QCOMPARE(fixture->waitForMessage(), success);
    QVERIFY(QFileInfo(fixture->path("cut.iso")).size() > dataBytes + (1 << 20));
    fixture->select(fixture->row({"more.bin"}));
    fixture->removeSelected();
    verifyUsable();
}

void TstCreateTrouble::fileThatVanishesBecomesAnEmptyFolderAsTheQueueTakesItForOne()
{
    HeldFolder held(fixture->path("held"), 0);
    writeFile(fixture->path("gone.txt"), "gone");
    fixture->addFolder(fixture->path("held"));
    fixture->addFiles({fixture->path("gone.txt")});
    // Its turn has not come yet.
    QVERIFY(QFile::remove(fixture->path("gone.txt")));
    held.release();
    QVERIFY(fixture->waitUntilStaged());
    QCOMPARE(entriesOf(CreatePageFixture::stagingFolder()),
             QStringList({"data.bin", "gone.txt", "held"}));
    QCOMPARE(hashesBelow(CreatePageFixture::stagingFolder() + "/gone.txt").keys(),
             QStringList("gone.txt"));
    for (const char* const name : {"gone.txt", "held"}) {
        fixture->select(fixture->row({name}));
        fixture->removeSelected();
    }
    verifyUsable();
}

void TstCreateTrouble::existingImageIsReplaced()
{
    const QString image = fixture->path("out.iso");
    writeRandomFile(image, 3 * dataBytes, 3);
    createOver(image, QMessageBox::Yes);
    QCOMPARE(fixture->waitForMessage(), success);
    QVERIFY(QFileInfo(image).size() < 2 * dataBytes);
    extractImage(image, fixture->path("out"));
    QVERIFY(readFile(fixture->path("out/data.bin")) == content);
    verifyUsable();
}

void TstCreateTrouble::existingImageIsKeptWhenTheUserSaysNo()
{
    const QString image = fixture->path("out.iso");
    writeFile(image, "mine");
    createOver(image, QMessageBox::No);
    verifyUsable();
    // A whole run later it is still there.
    QCOMPARE(readFile(image), QByteArray("mine"));
}

void TstCreateTrouble::stagingFolderThatVanishes()
{
    QVERIFY(QDir(CreatePageFixture::stagingFolder()).removeRecursively());
    fixture->startCreating(fixture->path("out.iso"));
    QCOMPARE(fixture->waitForMessage(), success);
    QVERIFY(!QFileInfo::exists(fixture->path("out.iso")));
    fixture->select(fixture->row({"data.bin"}));
    fixture->removeSelected();
    fixture->addFiles({fixture->path("data.bin")});
    verifyUsable();
}

void TstCreateTrouble::missingTool()
{
    const QString tool = CreatePageFixture::toolPath();
    QVERIFY(QFile::rename(tool, tool + ".away"));
    fixture->startCreating(fixture->path("out.iso"));
    const QString text = fixture->waitForMessage();
    QVERIFY(QFile::rename(tool + ".away", tool));
    QCOMPARE(text, success);
    QVERIFY(!QFileInfo::exists(fixture->path("out.iso")));
    verifyUsable();
}

KORVEX_TEST_MAIN(TstCreateTrouble)
#include "tst_createtrouble.moc"
