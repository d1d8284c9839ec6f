// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractpagefixture.h"

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "modaldriver.h"
#include "testfiles.h"
#include "usermouse.h"

#include <QApplication>
#include <QTest>

namespace
{

QString entryLine(const QString& attributes, const QString& size, const QString& path)
{
    return QString("2019-03-19 13:42:43 %1 %2 %2  %3")
        .arg(attributes, size.rightJustified(12), path);
}

CPage2* createPage(QWidget* window)
{
    CPage2* const page = new CPage2(window);
    page->InitializeUI();
    return page;
}

} // namespace

ExtractPageFixture::ExtractPageFixture()
    : PageFixture(createPage(&window))
    , tool(toolPath())
    , page(window.findChild<CPage2*>())
    , isoPath(path("image.iso"))
{
}

ExtractPageFixture::~ExtractPageFixture()
{
    delete page;
}

QString ExtractPageFixture::fileLine(const QString& path, qint64 bytes)
{
    return entryLine(".....", QString::number(bytes), path);
}

QString ExtractPageFixture::folderLine(const QString& path)
{
    return entryLine("D....", QString(), path);
}

QString ExtractPageFixture::separatorLine()
{
    return "------------------- ----- ------------ ------------  ------------------------";
}

QStringList ExtractPageFixture::usualEntries()
{
    return {folderLine("boot"),
            folderLine("boot/grub"),
            fileLine("boot/grub/font.pf2", 2048),
            fileLine("boot/grub/grub.cfg"),
            fileLine("boot/kernel", 1536),
            fileLine("readme.txt", 6),
            folderLine("docs"),
            fileLine("docs/manual.pdf", 3000000),
            fileLine("autorun.inf", 0)};
}

QStringList ExtractPageFixture::manyEntries()
{
    QStringList entries = usualEntries();
    entries += {folderLine(QString::fromUtf8("文書 と 画像")),
                folderLine("a folder with a rather long name"),
                folderLine("a folder with a rather long name/one below it"),
                fileLine("a file with a rather long name.tar.gz", 734003200)};
    for (int i = 1; i < 20; ++i)
        entries.append(fileLine(QString("picture %1.png").arg(i), 12345 * i));
    return entries;
}

QString ExtractPageFixture::toolPath()
{
    return QCoreApplication::applicationDirPath() + "/7z/7z";
}

QByteArray ExtractPageFixture::listingOf(const QStringList& entryLines)
{
    const QStringList lines =
        QStringList{"Listing archive: image.iso", "",
                    "   Date      Time    Attr         Size   Compressed  Name", separatorLine()} +
        entryLines +
        QStringList{separatorLine(), entryLine("     ", "3003596", "6 files, 3 folders")};
    return lines.join('\n').toUtf8() + '\n';
}

void ExtractPageFixture::setListing(const QStringList& entryLines) const
{
    const QString listing = path("listing.txt");
    writeFile(listing, listingOf(entryLines));
    tool.setScript({"file 4096 " + listing});
}

void ExtractPageFixture::startLoading(const QString& fileName)
{
    isoPath = path(fileName);
    if (!QFile::exists(isoPath))
        writeFile(isoPath, "image");
    ModalDriver driver;
    driver.typePath(isoPath);
    page->OnLoadISO();
}

bool ExtractPageFixture::waitUntilLoaded() const
{
    return QTest::qWaitFor([this] { return button("loadiso")->isEnabled(); }, 60000);
}

bool ExtractPageFixture::load(const QStringList& entryLines)
{
    setListing(entryLines);
    startLoading();
    const bool loaded = waitUntilLoaded();
    QCoreApplication::processEvents(); // the views lay their rows out a turn later
    return loaded;
}

void ExtractPageFixture::startExtractingTo(const QString& outputDir)
{
    ModalDriver driver;
    driver.typePath(outputDir);
    page->OnExtract();
}

bool ExtractPageFixture::extractTo(const QString& outputDir,
                                   const std::function<void()>& whileRunning,
                                   const QString& lastButton)
{
    startExtractingTo(outputDir);
    const std::function<void()> nothing = [] {};
    successText = answerMessage(whileRunning ? whileRunning : nothing, lastButton, {});
    return !successText.isNull();
}

void ExtractPageFixture::tick(const QStringList& names) const
{
    for (int row = 0; row < table()->rowCount(); ++row) {
        const bool on = names.contains(table()->item(row, 0)->text());
        table()->item(row, 0)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
}

QStringList ExtractPageFixture::ticked() const
{
    QStringList names;
    for (int row = 0; row < table()->rowCount(); ++row) {
        if (table()->item(row, 0)->checkState() == Qt::Checked)
            names.append(table()->item(row, 0)->text());
    }
    return names;
}

int ExtractPageFixture::rowOf(const QString& name) const
{
    return shownNames().indexOf(name);
}

QStringList ExtractPageFixture::shownNames() const
{
    QStringList names;
    for (int row = 0; row < table()->rowCount(); ++row)
        names.append(table()->item(row, 0)->text());
    return names;
}

void ExtractPageFixture::enter(const QString& path)
{
    const QStringList names = path.split('/');
    for (const QString& name : names)
        doubleClickRow(rowOf(name));
}

QPoint ExtractPageFixture::rowPoint(int row, int x) const
{
    const int y = table()->visualItemRect(table()->item(row, 0)).center().y();
    return {x, table()->viewport()->mapTo(table(), QPoint(0, y)).y()};
}

void ExtractPageFixture::clickRow(int row, int x) const
{
    UserMouse::press(table(), rowPoint(row, x));
    UserMouse::release(table(), rowPoint(row, x));
}

void ExtractPageFixture::doubleClickRow(int row) const
{
    const QPoint point = rowPoint(row, 80);
    UserMouse::move(table(), point);
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       table()->mapTo(&window, point));
    QCoreApplication::processEvents();
}

void ExtractPageFixture::clickNode(QTreeWidgetItem* node) const
{
    const QPoint inViewport = tree()->visualItemRect(node).center();
    const QPoint point = tree()->viewport()->mapTo(tree(), inViewport);
    UserMouse::press(tree(), point);
    UserMouse::release(tree(), point);
    QCoreApplication::processEvents();
}

QTableWidget* ExtractPageFixture::table() const
{
    return page->findChild<QTableWidget*>("list");
}

QTreeWidget* ExtractPageFixture::tree() const
{
    return page->findChild<QTreeWidget*>("tree");
}

QTreeWidgetItem* ExtractPageFixture::topNode() const
{
    return tree()->topLevelItem(0);
}
