// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editpagefixture.h"

#include "cimagebutton.h"
#include "clineedit.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "testfiles.h"
#include "util.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QTest>

namespace
{

CPage4* createPage(QWidget* window)
{
    CPage4* const page = new CPage4(window);
    page->InitializeUI();
    return page;
}

} // namespace

EditPageFixture::EditPageFixture()
    : PageFixture(createPage(&window))
    , page(window.findChild<CPage4*>())
    , archiver(QCoreApplication::applicationDirPath() + "/7z/7z")
    , author(QCoreApplication::applicationDirPath() + "/cdrtools/mkisofs")
{
    page->move(3, 107);
}

EditPageFixture::~EditPageFixture()
{
    delete page;
}

QString EditPageFixture::workFolder()
{
    return Util::GetTempDir() + "/tmp";
}

void EditPageFixture::setArchiver(const QStringList& entryLines, const QStringList& unpacking) const
{
    const QString listing = path("listing.txt");
    writeFile(listing, ExtractPageFixture::listingOf(entryLines));
    archiver.setScript(QStringList{"only l", "file 4096 " + listing, "only x"} + unpacking);
}

void EditPageFixture::startLoading(const QString& fileName)
{
    const QString image = path(fileName);
    if (!QFile::exists(image))
        writeFile(image, "image");
    ModalDriver driver;
    driver.typePath(image);
    page->OnLoadISO();
}

bool EditPageFixture::waitUntilListed(int limitMs) const
{
    const bool listed = QTest::qWaitFor([this] { return button("loadiso")->isEnabled(); }, limitMs);
    QCoreApplication::processEvents(); // the views lay their rows out a turn later
    return listed;
}

bool EditPageFixture::waitUntilWorked(int limitMs) const
{
    return QTest::qWaitFor([this] { return !page->isWorking(); }, limitMs);
}

bool EditPageFixture::load()
{
    startLoading();
    return waitUntilListed() && waitUntilWorked();
}

void EditPageFixture::tick(const QStringList& names) const
{
    for (int row = 0; row < table()->rowCount(); ++row) {
        const bool on = names.contains(table()->item(row, 0)->text());
        table()->item(row, 0)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
}

int EditPageFixture::rowOf(const QString& name) const
{
    return shownNames().indexOf(name);
}

QStringList EditPageFixture::shownNames() const
{
    QStringList names;
    for (int row = 0; row < table()->rowCount(); ++row)
        names.append(table()->item(row, 0)->text());
    return names;
}

void EditPageFixture::openFolder(const QString& name) const
{
    table()->setCurrentCell(rowOf(name), 0);
    page->OnListViewDoubleClicked();
}

void EditPageFixture::add(const QStringList& paths) const
{
    ModalDriver driver;
    driver.typePath(paths.size() == 1 ? paths.first() : '"' + paths.join("\" \"") + '"');
    page->OnAdd();
}

void EditPageFixture::rename(const QString& name, const QString& newName) const
{
    tick({name});
    ModalDriver driver;
    driver.run("CInputDialog", [&newName](QWidget* dialog) {
        dialog->findChild<QLineEdit*>()->setText(newName);
        dialog->findChild<CImageButton*>("btnok")->click();
    });
    page->OnRename();
}

void EditPageFixture::remove(const QStringList& names) const
{
    tick(names);
    page->OnDelete();
}

void EditPageFixture::startSaving(const QString& isoPath) const
{
    ModalDriver driver;
    driver.typePath(isoPath);
    if (QFile::exists(isoPath)) {
        driver.run("QMessageBox", [](QWidget* dialog) {
            static_cast<QMessageBox*>(dialog)->button(QMessageBox::Yes)->click();
        });
    }
    page->OnSave();
}

QTableWidget* EditPageFixture::table() const
{
    return page->findChild<QTableWidget*>("list");
}

QTreeWidget* EditPageFixture::tree() const
{
    return page->findChild<QTreeWidget*>("tree");
}

CLineEdit* EditPageFixture::search() const
{
    return page->findChild<CLineEdit*>("search");
}
