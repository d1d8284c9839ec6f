// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "editsavefixture.h"
#include "imagemaker.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolstopper.h"
#include "util.h"

#include <csignal>

namespace
{

using Hashes = QMap<QString, QByteArray>;

constexpr qint64 filmBytes = 500'000;
constexpr int films = 6;
constexpr int limitMs = 60'000;
const QString success = "Save ISO file successfully!";
const QString extracting = "Extracting iso...";
const QString copying = "Copy files and directories...";

// The entry and everything below it.
void remove(Hashes& hashes, const QString& path)
{
    for (const QString& key : hashes.keys()) {
        if (key == path || key.startsWith(path + '/'))
            hashes.remove(key);
    }
}

void rename(Hashes& hashes, const QString& path, const QString& newPath)
{
    for (const QString& key : hashes.keys()) {
        if (key == path || key.startsWith(path + '/'))
            hashes.insert(newPath + key.mid(path.size()), hashes.take(key));
    }
}

void add(Hashes& hashes, const QString& folder, const QString& path)
{
    const Hashes added = hashesBelow(folder);
    for (auto entry = added.cbegin(); entry != added.cend(); ++entry)
        hashes.insert(path + entry.key(), entry.value());
}

void wake(int tool)
{
    ::kill(tool, SIGCONT);
}

} // namespace

// Images that are edited and saved with the real tools, by what the archiver finds in them then.
class TstEditSave : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void editsWhileALargeImageIsBeingUnpackedAreInTheSavedOne();
    void uneditedSaveHasTheSameContent();
    void savedOverAnExistingFile();
    void secondImageLoadedWhileTheFirstIsBeingUnpackedIsTheOneSaved();
    void saveStoppedInTheExtractionWaitThenSavedAgain();
    void saveStoppedInTheCopyWaitThenSavedAgain();
    void saveStoppedWhileWritingThenSavedAgain();
    void bootImageOfABootableImageLiesBesideTheProgram();
    void withABootFileAmongTheProgramsDataTheAuthoringToolRefusesItsCommandLine();

private:
    QTemporaryDir folder;
    QString largeImage;
    Hashes largeContent;
    QString smallImage;
    Hashes smallContent;
    std::unique_ptr<EditSaveFixture> fixture;
    QString image;
};

void TstEditSave::initTestCase()
{
    setApplicationLook();
    const QString large = folder.filePath("large");
    for (int i = 0; i < films; ++i)
        writeRandomFile(large + QString("/films/film %1.bin").arg(i), filmBytes, quint32(i));
    writeFile(large + "/remove me/x.txt", "x");
    const QString small = folder.filePath("small");
    for (const QString& tree : {large, small}) {
        writeFile(tree + "/readme.txt", "read me");
        writeFile(tree + "/docs/a.txt", "a");
        writeFile(tree + "/docs/deep/b.txt", tree.toUtf8());
        QVERIFY(QDir().mkpath(tree + "/empty folder"));
    }
    writeRandomFile(small + "/some.bin", 400'000, 77);
    largeImage = folder.filePath("large.iso");
    smallImage = folder.filePath("small.iso");
    makeImage(large, largeImage);
    makeImage(small, smallImage);
    largeContent = hashesBelow(large);
    smallContent = hashesBelow(small);
    QVERIFY(QDir(large).removeRecursively());
}

void TstEditSave::init()
{
    TestCase::init();
    fixture = std::make_unique<EditSaveFixture>();
    image = fixture->path("saved.iso");
}

void TstEditSave::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstEditSave::editsWhileALargeImageIsBeingUnpackedAreInTheSavedOne()
{
    writeFile(fixture->path("extra/one.txt"), "one");
    writeFile(fixture->path("extra/sub/two.txt"), "two");
    writeFile(fixture->path("new.bin"), QByteArray(3'000'000, 'n'));
    const int archiver = fixture->browseWhileUnpacking(largeImage);
    fixture->remove({"remove me", "empty folder"});
    fixture->rename("docs", "papers & more");
    fixture->rename("readme.txt", "read me first.txt");
    fixture->add({fixture->path("extra")});
    fixture->openFolder("films");
    fixture->remove({"film 0.bin", "film 3.bin"});
    fixture->rename("film 1.bin", "film 0.bin");
    fixture->add({fixture->path("new.bin")});
    // Still being unpacked: no edit has reached the disk.
    QVERIFY(fixture->page->isWorking());
    const QString work = EditPageFixture::workFolder();
    QVERIFY(!QFile::exists(work + "/extra") && !QFile::exists(work + "/films/new.bin"));
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(extracting); }, [&] { wake(archiver); }));
    QCOMPARE(fixture->waitForMessage(), success);

    Hashes expected = largeContent;
    for (const char* const gone : {"remove me", "empty folder", "films/film 0.bin"})
        remove(expected, gone);
    remove(expected, "films/film 3.bin");
    rename(expected, "docs", "papers & more");
    rename(expected, "readme.txt", "read me first.txt");
    rename(expected, "films/film 1.bin", "films/film 0.bin");
    QVERIFY(QFile::rename(fixture->path("new.bin"), fixture->path("extra/new.bin")));
    add(expected, fixture->path("extra"), "extra/");
    rename(expected, "extra/new.bin", "films/new.bin");
    expected.insert("extra", QByteArray());
    QCOMPARE(QStringList(expected.keys()), fixture->allPaths());
    const Hashes saved = EditSaveFixture::contentOf(image);
    QCOMPARE(saved.keys(), expected.keys());
    QVERIFY(saved == expected);
}

void TstEditSave::uneditedSaveHasTheSameContent()
{
    QVERIFY(fixture->browse(smallImage));
    QCOMPARE(fixture->save(image), success);
    QVERIFY(EditSaveFixture::contentOf(image) == smallContent);
    // Over the image that it was loaded from as well.
    QVERIFY(QFile::copy(smallImage, fixture->path("own.iso")));
    QVERIFY(fixture->browse(fixture->path("own.iso")));
    fixture->remove({"readme.txt"});
    QCOMPARE(fixture->save(fixture->path("own.iso")), success);
    Hashes expected = smallContent;
    expected.remove("readme.txt");
    QVERIFY(EditSaveFixture::contentOf(fixture->path("own.iso")) == expected);
}

void TstEditSave::savedOverAnExistingFile()
{
    writeRandomFile(image, 10'000'000, 5);
    QVERIFY(fixture->browse(smallImage));
    QCOMPARE(fixture->save(image), success);
    QVERIFY(QFileInfo(image).size() < 5'000'000);
    QVERIFY(EditSaveFixture::contentOf(image) == smallContent);
}

void TstEditSave::secondImageLoadedWhileTheFirstIsBeingUnpackedIsTheOneSaved()
{
    fixture->browseWhileUnpacking(largeImage);
    fixture->remove({"docs"});
    QVERIFY(fixture->page->isWorking());
    QVERIFY(fixture->browse(smallImage));
    QCOMPARE(fixture->save(image), success);
    QVERIFY(EditSaveFixture::contentOf(image) == smallContent);
    QVERIFY(EditSaveFixture::areToolsGone());
}

void TstEditSave::saveStoppedInTheExtractionWaitThenSavedAgain()
{
    const int archiver = fixture->browseWhileUnpacking(smallImage);
    fixture->rename("docs", "papers");
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(extracting); },
        [&] {
            fixture->pressStop();
            wake(archiver);
        }));
    QVERIFY(!QFile::exists(image));
    QCOMPARE(fixture->save(image), success);
    Hashes expected = smallContent;
    rename(expected, "docs", "papers");
    QVERIFY(EditSaveFixture::contentOf(image) == expected);
}

void TstEditSave::saveStoppedInTheCopyWaitThenSavedAgain()
{
    QVERIFY(fixture->browse(smallImage));
    QVERIFY(fixture->waitUntilWorked());
    const auto held = fixture->addHeld(5'000'000);
    QVERIFY(fixture->saveAnd(
        image, [this] { return fixture->isShowing(copying); },
        [&] {
            fixture->pressStop();
            held->release();
        }));
    QVERIFY(!QFile::exists(image));
    QCOMPARE(fixture->save(image), success);
    Hashes expected = smallContent;
    expected.insert("held", QByteArray());
    add(expected, fixture->path("held"), "held/");
    QVERIFY(EditSaveFixture::contentOf(image) == expected);
}

void TstEditSave::saveStoppedWhileWritingThenSavedAgain()
{
    QVERIFY(fixture->browse(smallImage));
    QVERIFY(fixture->waitUntilWorked());
    for (int run = 0; run < 3; ++run) {
        ToolStopper author("-udf");
        fixture->startSaving(image);
        // Before its first step, in the middle and near the end.
        QVERIFY(author.catchWhen([&] { return QFileInfo(image).size() >= run * 180'000; }));
        fixture->pressStop();
        QVERIFY(fixture->isUsable());
        // The last time without waiting for the end of the tool, which stands still.
        if (run < 2)
            QTRY_VERIFY_WITH_TIMEOUT(EditSaveFixture::areToolsGone(), limitMs);
    }
    QCOMPARE(fixture->save(image), success);
    QVERIFY(EditSaveFixture::contentOf(image) == smallContent);
}

void TstEditSave::bootImageOfABootableImageLiesBesideTheProgram()
{
    writeFile(fixture->path("tree/isolinux.bin"), readFile("/usr/lib/ISOLINUX/isolinux.bin"));
    writeFile(fixture->path("tree/a.txt"), "a");
    const QString bootable = fixture->path("bootable.iso");
    makeImage(fixture->path("tree"), bootable,
              {"-b", "isolinux.bin", "-c", "boot.cat", "-no-emul-boot", "-boot-load-size", "4",
               "-boot-info-table"});
    const QString bootImage = Util::GetCurrentExePath() + "/boot.bin";
    QVERIFY(fixture->browse(bootable));
    QCOMPARE(readFile(bootImage).size(), 2048);
    QCOMPARE(readFile(bootImage), extractedFile(bootable, "isolinux.bin").left(2048));
    fixture->rename("a.txt", "b.txt");
    QCOMPARE(fixture->save(image), success);
    Hashes expected = EditSaveFixture::contentOf(bootable);
    rename(expected, "a.txt", "b.txt");
    QVERIFY(EditSaveFixture::contentOf(image) == expected);
    // Every load replaces it, also one of an image that has none.
    QVERIFY(fixture->browse(smallImage));
    QVERIFY(!QFile::exists(bootImage));
}

// The two arguments stand where the tool expects the name of the new image.
void TstEditSave::withABootFileAmongTheProgramsDataTheAuthoringToolRefusesItsCommandLine()
{
    QVERIFY(fixture->browse(smallImage));
    writeFile(Util::GetTempDir() + "/boot.bin", "boot");
    const QString text = fixture->save(image);
    QVERIFY(QFile::remove(Util::GetTempDir() + "/boot.bin"));
    QCOMPARE(text, success);
    QVERIFY(!QFile::exists(image));
    QCOMPARE(readFile(EditPageFixture::workFolder() + "/boot.bin"), QByteArray("boot"));
}

KORVEX_TEST_MAIN(TstEditSave)
#include "tst_editsave.moc"
