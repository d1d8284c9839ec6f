// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cfiledialog.h"
#include "foldertest.h"
#include "modaldriver.h"
#include "testmain.h"
#include "usermouse.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

#include <memory>

class TstCFileDialog : public FolderTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void twoFoldersAreBothReturned();
    void filesAndFoldersAreReturnedTogether();
    void oneFolderCanBeChosen();
    void filesAreShownOnlyWithFiles_data();
    void filesAreShownOnlyWithFiles();
    void detailsViewSelectsSeveralAsWell();
    void okIsOffUntilSomethingIsSelected();
    void doubleClickEntersAFolder();
    void doubleClickOnAFileChoosesIt();
    void typedFolderIsReturned();
    void typedNameOfNothingReturnsNothing();
    void typedFileIsRefusedWithoutFiles();
    void cancelReturnsRejected();

private:
    void open(bool withFiles);
    void select(const QStringList& names);
    QModelIndex row(const QString& name) const;
    QPushButton* button(QDialogButtonBox::StandardButton which) const;
    QStringList paths(const QStringList& names) const;
    static QStringList sorted(QStringList names)
    {
        names.sort();
        return names;
    }

    std::unique_ptr<CFileDialog> dialog;
    QListView* list = nullptr;
};

void TstCFileDialog::init()
{
    FolderTest::init();
    const QDir dir(folder->path());
    for (const char* name : {"one", "two words", "inner"})
        QVERIFY(dir.mkdir(name));
    QVERIFY(dir.mkdir(QString::fromUtf8("ünï 画像")));
    QVERIFY(dir.mkpath("inner/deep"));
    for (const char* name : {"a.txt", "-b \"quoted\".iso"})
        QVERIFY(QFile(dir.filePath(name)).open(QFile::WriteOnly));
}

void TstCFileDialog::cleanup()
{
    dialog.reset();
    FolderTest::cleanup();
}

void TstCFileDialog::open(bool withFiles)
{
    dialog = std::make_unique<CFileDialog>(nullptr, withFiles);
    dialog->setViewMode(QFileDialog::List);
    dialog->setDirectory(folder->path());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog.get(), 30'000));
    list = dialog->findChild<QListView*>("listView");
    // The listing arrives from another thread.
    QTRY_COMPARE_WITH_TIMEOUT(list->model()->rowCount(list->rootIndex()), withFiles ? 6 : 4,
                              30'000);
}

QModelIndex TstCFileDialog::row(const QString& name) const
{
    const QAbstractItemModel* model = list->model();
    for (int i = 0; i < model->rowCount(list->rootIndex()); ++i) {
        const QModelIndex index = model->index(i, 0, list->rootIndex());
        if (index.data().toString() == name)
            return index;
    }
    return {};
}

// Clicks the first name, then the others with the Control key held.
void TstCFileDialog::select(const QStringList& names)
{
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (const QString& name : names) {
        const QModelIndex index = row(name);
        QVERIFY2(index.isValid(), qPrintable(name));
        list->scrollTo(index);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers,
                          list->visualRect(index).center());
        modifiers = Qt::ControlModifier;
    }
}

QPushButton* TstCFileDialog::button(QDialogButtonBox::StandardButton which) const
{
    return dialog->findChild<QDialogButtonBox*>("buttonBox")->button(which);
}

QStringList TstCFileDialog::paths(const QStringList& names) const
{
    QStringList all;
    for (const QString& name : names)
        all.append(folder->filePath(name));
    return sorted(all);
}

void TstCFileDialog::twoFoldersAreBothReturned()
{
    open(false);
    const QStringList names{"two words", QString::fromUtf8("ünï 画像")};
    select(names);
    QVERIFY(button(QDialogButtonBox::Open)->isEnabled());
    UserMouse::click(button(QDialogButtonBox::Open));
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QVERIFY(dialog->isHidden());
    QCOMPARE(sorted(dialog->selectedFiles()), paths(names));
}

void TstCFileDialog::filesAndFoldersAreReturnedTogether()
{
    open(true);
    const QStringList names{"one", "a.txt", "-b \"quoted\".iso"};
    select(names);
    UserMouse::click(button(QDialogButtonBox::Open));
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(sorted(dialog->selectedFiles()), paths(names));
}

void TstCFileDialog::oneFolderCanBeChosen()
{
    open(true);
    select({"one"});
    UserMouse::click(button(QDialogButtonBox::Open));
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->selectedFiles(), paths({"one"}));
}

void TstCFileDialog::filesAreShownOnlyWithFiles_data()
{
    QTest::addColumn<bool>("withFiles");
    QTest::newRow("folders only") << false;
    QTest::newRow("folders and files") << true;
}

void TstCFileDialog::filesAreShownOnlyWithFiles()
{
    QFETCH(bool, withFiles);
    open(withFiles);
    QCOMPARE(row("a.txt").isValid(), withFiles);
    QVERIFY(row("one").isValid());
    QVERIFY(!row("..").isValid());
}

void TstCFileDialog::detailsViewSelectsSeveralAsWell()
{
    open(false);
    dialog->setViewMode(QFileDialog::Detail);
    auto* details = dialog->findChild<QTreeView*>("treeView");
    QCOMPARE(list->selectionMode(), QAbstractItemView::ExtendedSelection);
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (const char* name : {"one", "inner"}) {
        QTest::mouseClick(details->viewport(), Qt::LeftButton, modifiers,
                          details->visualRect(row(name)).center());
        modifiers = Qt::ControlModifier;
    }
    UserMouse::click(button(QDialogButtonBox::Open));
    QCOMPARE(sorted(dialog->selectedFiles()), paths({"one", "inner"}));
}

void TstCFileDialog::okIsOffUntilSomethingIsSelected()
{
    open(false);
    QVERIFY(!button(QDialogButtonBox::Open)->isEnabled());
    select({"one"});
    QVERIFY(button(QDialogButtonBox::Open)->isEnabled());
}

void TstCFileDialog::doubleClickEntersAFolder()
{
    open(false);
    list->scrollTo(row("inner"));
    const QPoint centre = list->visualRect(row("inner")).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QTRY_COMPARE_WITH_TIMEOUT(dialog->directory().canonicalPath(),
                              QFileInfo(folder->filePath("inner")).canonicalFilePath(), 30'000);
    QVERIFY(dialog->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(row("deep").isValid(), 30'000);
    select({"deep"});
    UserMouse::click(button(QDialogButtonBox::Open));
    QCOMPARE(dialog->selectedFiles(), paths({"inner/deep"}));
}

void TstCFileDialog::doubleClickOnAFileChoosesIt()
{
    open(true);
    list->scrollTo(row("a.txt"));
    const QPoint centre = list->visualRect(row("a.txt")).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QTRY_VERIFY_WITH_TIMEOUT(dialog->isHidden(), 30'000);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->selectedFiles(), paths({"a.txt"}));
}

void TstCFileDialog::typedFolderIsReturned()
{
    open(false);
    select({"one"});
    ModalDriver driver;
    driver.typePath(folder->filePath("inner/deep"));
    dialog->hide();
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    QCOMPARE(dialog->selectedFiles(), paths({"inner/deep"}));
}

void TstCFileDialog::typedNameOfNothingReturnsNothing()
{
    open(true);
    ModalDriver driver;
    driver.typePath("no such thing");
    dialog->hide();
    QCOMPARE(dialog->exec(), int(QDialog::Accepted));
    QCOMPARE(dialog->selectedFiles(), QStringList());
}

void TstCFileDialog::typedFileIsRefusedWithoutFiles()
{
    open(false);
    ModalDriver driver;
    driver.typePath(folder->filePath("a.txt"));
    dialog->hide();
    dialog->exec();
    QCOMPARE(dialog->selectedFiles(), QStringList());
}

void TstCFileDialog::cancelReturnsRejected()
{
    open(false);
    select({"one"});
    UserMouse::click(button(QDialogButtonBox::Cancel));
    QCOMPARE(dialog->result(), int(QDialog::Rejected));
}

KORVEX_TEST_MAIN(TstCFileDialog)
#include "tst_cfiledialog.moc"
