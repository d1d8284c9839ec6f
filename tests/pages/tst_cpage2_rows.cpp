// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractpagefixture.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "util.h"

// The rows of the Extract page's table and the nodes of its tree, once an image is loaded.
class TstCPage2Rows : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void folderRowIsMarkedAndHasNoSize();
    void fileRowShowsSizeTypeAndTime();
    void sizeBeyond32BitsIsShown();
    void unreadableSizeShowsAsZero();
    void rowsFollowTheOrderOfTheImage();
    void namesAreShownAsTheyAre_data();
    void namesAreShownAsTheyAre();
    void treeShowsFoldersOnlyBelowTheImagesName();
    void nodesPointToTheirItems();
    void loadFilesWithoutItemOrNodeDoesNothing();
    void loadFilesWithAViewAddsTopLevelNodes();

private:
    std::unique_ptr<ExtractPageFixture> fixture;
};

void TstCPage2Rows::initTestCase()
{
    setApplicationLook();
}

void TstCPage2Rows::init()
{
    TestCase::init();
    fixture = std::make_unique<ExtractPageFixture>();
}

void TstCPage2Rows::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage2Rows::folderRowIsMarkedAndHasNoSize()
{
    QVERIFY(fixture->load());
    const QTableWidget* const table = fixture->table();
    const int row = fixture->rowOf("boot");
    QCOMPARE(table->item(row, 0)->checkState(), Qt::Unchecked);
    QCOMPARE(table->item(row, 0)->data(Qt::UserRole), QVariant(1));
    QVERIFY(!table->item(row, 0)->icon().isNull());
    QCOMPARE(table->item(row, 1)->text(), QString());
    QCOMPARE(table->item(row, 2)->text(), QString("Folder"));
    QCOMPARE(table->item(row, 3)->text(), QString("2019-03-19 13:42:43"));
}

void TstCPage2Rows::fileRowShowsSizeTypeAndTime()
{
    QVERIFY(fixture->load());
    fixture->enter("boot");
    const QTableWidget* const table = fixture->table();
    const int row = fixture->rowOf("kernel");
    QCOMPARE(table->item(row, 0)->checkState(), Qt::Unchecked);
    QVERIFY(!table->item(row, 0)->data(Qt::UserRole).isValid());
    QCOMPARE(table->item(row, 0)->icon().cacheKey(), Util::GetExtensionIcon("kernel").cacheKey());
    QCOMPARE(table->item(row, 1)->text(), QString("1.50 KB"));
    QCOMPARE(table->item(row, 2)->text(), Util::GetExtensionString("kernel"));
    QCOMPARE(table->item(row, 3)->text(), QString("2019-03-19 13:42:43"));
}

void TstCPage2Rows::sizeBeyond32BitsIsShown()
{
    QVERIFY(fixture->load({ExtractPageFixture::fileLine("dvd.img", 6442450944)}));
    QCOMPARE(fixture->table()->item(0, 1)->text(), QString("6 GB"));
}

void TstCPage2Rows::unreadableSizeShowsAsZero()
{
    QString line = ExtractPageFixture::fileLine("a.bin");
    line.replace(26, 12, "            ");
    QVERIFY(fixture->load({line}));
    QCOMPARE(fixture->table()->item(0, 1)->text(), Util::SizeToString(0));
}

void TstCPage2Rows::rowsFollowTheOrderOfTheImage()
{
    QVERIFY(fixture->load());
    QCOMPARE(fixture->shownNames(), QStringList({"boot", "readme.txt", "docs", "autorun.inf"}));
}

void TstCPage2Rows::namesAreShownAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << "a  b c.txt";
    QTest::newRow("leading blank") << " leading";
    QTest::newRow("quotes") << "say \"hi\" 'there'.txt";
    QTest::newRow("leading dash") << "-rf";
    QTest::newRow("at sign") << "@list";
    QTest::newRow("markup") << "<b>bold &amp;.txt";
    QTest::newRow("ampersand") << "R&D";
    QTest::newRow("percent") << "100%1.txt";
    QTest::newRow("Cyrillic") << QString::fromUtf8("файл.txt");
    QTest::newRow("CJK") << QString::fromUtf8("日本語 文書");
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("💿.iso");
    QTest::newRow("long") << QString(250, 'n');
}

void TstCPage2Rows::namesAreShownAsTheyAre()
{
    QFETCH(QString, name);
    QVERIFY(fixture->load({ExtractPageFixture::folderLine(name)}));
    QCOMPARE(fixture->shownNames(), QStringList(name));
    QCOMPARE(fixture->topNode()->child(0)->text(0), name);
}

void TstCPage2Rows::treeShowsFoldersOnlyBelowTheImagesName()
{
    QVERIFY(fixture->load());
    QCOMPARE(fixture->tree()->topLevelItemCount(), 1);
    const QTreeWidgetItem* const top = fixture->topNode();
    QCOMPARE(top->text(0), QString("image.iso"));
    QVERIFY(top->isExpanded());
    QVERIFY(!top->icon(0).isNull());
    QCOMPARE(top->childCount(), 2);
    QCOMPARE(top->child(0)->text(0), QString("boot"));
    QVERIFY(!top->child(0)->icon(0).isNull());
    QCOMPARE(top->child(0)->childCount(), 1);
    QCOMPARE(top->child(0)->child(0)->text(0), QString("grub"));
    QCOMPARE(top->child(1)->text(0), QString("docs"));
    QCOMPARE(top->child(1)->childCount(), 0);
}

void TstCPage2Rows::nodesPointToTheirItems()
{
    QVERIFY(fixture->load());
    const auto itemOf = [](const QTreeWidgetItem* node) {
        return node->data(0, Qt::UserRole).value<Item*>();
    };
    Item* const root = itemOf(fixture->topNode());
    QVERIFY(root);
    QCOMPARE(root->path, QString());
    Item* const grub = itemOf(fixture->topNode()->child(0)->child(0));
    QVERIFY(grub);
    QCOMPARE(grub->path, QString("boot/grub"));
    QCOMPARE(fixture->page->GetTreeWidgetItemByData(fixture->tree(), grub),
             fixture->topNode()->child(0)->child(0));
    Item stranger;
    QVERIFY(!fixture->page->GetTreeWidgetItemByData(fixture->tree(), &stranger));
}

void TstCPage2Rows::loadFilesWithoutItemOrNodeDoesNothing()
{
    Item folder;
    Item child;
    child.path = "a";
    folder.children.append(child);
    QTreeWidget view;
    QTreeWidgetItem node;
    fixture->page->LoadFiles(nullptr, &view, &node);
    fixture->page->LoadFiles(&folder, &view, nullptr);
    QCOMPARE(view.topLevelItemCount(), 0);
    QCOMPARE(node.childCount(), 0);
}

void TstCPage2Rows::loadFilesWithAViewAddsTopLevelNodes()
{
    Item folder;
    Item child;
    child.path = "a";
    Item below;
    below.path = "a/b";
    child.children.append(below);
    folder.children.append(child);
    QTreeWidget view;
    QTreeWidgetItem node;
    fixture->page->LoadFiles(&folder, &view, &node);
    QCOMPARE(view.topLevelItemCount(), 1);
    QCOMPARE(node.childCount(), 0);
    QCOMPARE(view.topLevelItem(0)->child(0)->text(0), QString("b"));
}

KORVEX_TEST_MAIN(TstCPage2Rows)
#include "tst_cpage2_rows.moc"
