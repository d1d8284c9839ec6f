// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"
#include "modaldriver.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include <functional>

class TstUtilPickers : public FolderTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void openFileReturnsTheFile();
    void openFilesReturnsTheFiles();
    void folderReturnsTheFolder();
    void saveReturnsTheNewPath();
    void foldersReturnsTheSelection();
    void foldersAndFilesReturnsTheSelection();
    void cancelGivesNothing_data();
    void cancelGivesNothing();

private:
    // Answers the next picker: checks its title, start folder and filters on the way.
    struct Expected
    {
        QString title;
        QString folder;
        QStringList filters;
        bool readOnly;
    };
    static void check(const QFileDialog* dialog, const Expected& expected);
    // Types the text into the picker's field and presses its button.
    static void accept(const QFileDialog* dialog, const QString& text);
    void chooseAll(QWidget* widget, int count);
};

void TstUtilPickers::init()
{
    FolderTest::init();
    const QDir dir(folder->path());
    QVERIFY(dir.mkdir("inner one"));
    QVERIFY(dir.mkdir("inner two"));
    writeFile(path("a.iso"), {});
    writeFile(path("b.iso"), {});
    // The pickers start in the current folder or in the user's own.
    QVERIFY(QDir::setCurrent(folder->path()));
    QVERIFY(qputenv("HOME", QFile::encodeName(path("inner one"))));
}

void TstUtilPickers::cleanup()
{
    QDir::setCurrent("/");
    FolderTest::cleanup();
}

void TstUtilPickers::check(const QFileDialog* dialog, const Expected& expected)
{
    QCOMPARE(dialog->windowTitle(), expected.title);
    QCOMPARE(dialog->directory().canonicalPath(), QDir(expected.folder).canonicalPath());
    QCOMPARE(dialog->nameFilters(), expected.filters);
    QCOMPARE(dialog->testOption(QFileDialog::ReadOnly), expected.readOnly);
}

void TstUtilPickers::accept(const QFileDialog* dialog, const QString& text)
{
    const bool saves = dialog->acceptMode() == QFileDialog::AcceptSave;
    QPushButton* const button =
        dialog->findChild<QDialogButtonBox*>("buttonBox")
            ->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open);
    if (!text.isEmpty())
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(text);
    QVERIFY(button->isEnabled());
    button->click();
}

void TstUtilPickers::openFileReturnsTheFile()
{
    ModalDriver driver;
    driver.run("QFileDialog", [this](QWidget* widget) {
        const auto* dialog = static_cast<QFileDialog*>(widget);
        check(dialog,
              {"Open File", QDir::homePath(), {"All Files (*)", "ISO Files (*.iso)"}, true});
        accept(dialog, path("a.iso"));
    });
    QCOMPARE(Util::GetOpenFileDialog(nullptr, "ISO Files (*.iso)"), path("a.iso"));
}

void TstUtilPickers::openFilesReturnsTheFiles()
{
    ModalDriver driver;
    driver.run("QFileDialog", [this](QWidget* widget) {
        auto* dialog = static_cast<QFileDialog*>(widget);
        check(dialog, {"Open Files", QDir::homePath(), {"Any Files(*.*)"}, true});
        dialog->setDirectory(folder->path());
        accept(dialog, "\"a.iso\" \"b.iso\"");
    });
    QStringList files = Util::GetOpenFilesDialog(nullptr);
    files.sort();
    QCOMPARE(files, QStringList({path("a.iso"), path("b.iso")}));
}

void TstUtilPickers::folderReturnsTheFolder()
{
    ModalDriver driver;
    driver.run("QFileDialog", [this](QWidget* widget) {
        const auto* dialog = static_cast<QFileDialog*>(widget);
        check(dialog, {"Open Folder", ".", {"All Files (*)"}, false});
        QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
        accept(dialog, path("inner one"));
    });
    QCOMPARE(Util::GetDirDialog(nullptr), path("inner one"));
}

void TstUtilPickers::saveReturnsTheNewPath()
{
    ModalDriver driver;
    driver.run("QFileDialog", [this](QWidget* widget) {
        const auto* dialog = static_cast<QFileDialog*>(widget);
        check(dialog, {"Save File", ".", {"ISO Files (*.iso)"}, false});
        QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
        accept(dialog, path("new image.iso"));
    });
    QCOMPARE(Util::GetSaveDialog(nullptr, "ISO Files (*.iso)"), path("new image.iso"));
}

void TstUtilPickers::chooseAll(QWidget* widget, int count)
{
    auto* dialog = static_cast<QFileDialog*>(widget);
    dialog->setDirectory(folder->path());
    auto* list = dialog->findChild<QListView*>("listView");
    QTRY_COMPARE_WITH_TIMEOUT(list->model()->rowCount(list->rootIndex()), count, 30'000);
    list->selectAll();
    accept(dialog, {});
}

void TstUtilPickers::foldersReturnsTheSelection()
{
    ModalDriver driver;
    driver.run("CFileDialog", [this](QWidget* widget) { chooseAll(widget, 2); });
    QStringList chosen = Util::GetDirsDialog(nullptr);
    chosen.sort();
    QCOMPARE(chosen, QStringList({path("inner one"), path("inner two")}));
}

void TstUtilPickers::foldersAndFilesReturnsTheSelection()
{
    ModalDriver driver;
    driver.run("CFileDialog", [this](QWidget* widget) { chooseAll(widget, 4); });
    QStringList chosen = Util::GetDirsAndFilesDialog(nullptr);
    chosen.sort();
    QCOMPARE(chosen,
             QStringList({path("a.iso"), path("b.iso"), path("inner one"), path("inner two")}));
}

void TstUtilPickers::cancelGivesNothing_data()
{
    QTest::addColumn<int>("picker");
    const char* names[] = {"file", "files", "folder", "save", "folders", "folders and files"};
    for (int i = 0; i < 6; ++i)
        QTest::newRow(names[i]) << i;
}

void TstUtilPickers::cancelGivesNothing()
{
    QFETCH(int, picker);
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    const std::function<QStringList()> run[] = {
        [] { return QStringList{Util::GetOpenFileDialog(nullptr, "")}; },
        [] { return Util::GetOpenFilesDialog(nullptr); },
        [] { return QStringList{Util::GetDirDialog(nullptr)}; },
        [] { return QStringList{Util::GetSaveDialog(nullptr, "")}; },
        [] { return Util::GetDirsDialog(nullptr); },
        [] { return Util::GetDirsAndFilesDialog(nullptr); }};
    QCOMPARE(run[picker]().join(""), QString());
    QVERIFY(driver.done());
}

KORVEX_TEST_MAIN(TstUtilPickers)
#include "tst_util_pickers.moc"
