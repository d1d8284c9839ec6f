// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "item.h"
#include "testcase.h"
#include "testmain.h"

namespace
{

Item itemAt(const QString& path)
{
    Item item;
    item.path = path;
    item.isDir = false;
    return item;
}

} // namespace

class TstItem : public TestCase
{
    Q_OBJECT

private slots:
    void newItemIsAnEmptyFolder();
    void nameAndFolderOfAPath_data();
    void nameAndFolderOfAPath();
    void renameReplacesTheLastComponent();
    void renamedBranchTakesEverythingBelowAlong();
    void copyHasEntriesOfItsOwn();
    void itemPointerTravelsInAVariant();
};

void TstItem::newItemIsAnEmptyFolder()
{
    const Item item;
    QVERIFY(item.isDir);
    QCOMPARE(item.reserved, qint64(0));
    QVERIFY(item.path.isEmpty() && item.localPath.isEmpty());
    QVERIFY(item.sizeText.isEmpty() && item.timeText.isEmpty());
    QVERIFY(item.children.isEmpty());
}

void TstItem::nameAndFolderOfAPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder");
    QTest::newRow("nested") << "a/b/c"
                            << "c"
                            << "a/b";
    QTest::newRow("top level entry has no folder") << "c"
                                                   << "c"
                                                   << "";
    QTest::newRow("path that ends in a slash has no name") << "a/b/"
                                                           << ""
                                                           << "a/b";
    QTest::newRow("root") << ""
                          << ""
                          << "";
    QTest::newRow("blanks and quotes") << "My \"Docs\"/ a b "
                                       << " a b "
                                       << "My \"Docs\"";
    QTest::newRow("scripts") << QString::fromUtf8("Документы/日本語") << QString::fromUtf8("日本語")
                             << QString::fromUtf8("Документы");
}

void TstItem::nameAndFolderOfAPath()
{
    QFETCH(QString, path);
    const Item item = itemAt(path);
    QTEST(item.GetName(), "name");
    QTEST(item.GetRelPath(), "folder");
}

void TstItem::renameReplacesTheLastComponent()
{
    Item nested = itemAt("a/old.txt");
    nested.Rename("new.txt");
    QCOMPARE(nested.path, QString("a/new.txt"));
    Item top = itemAt("old");
    top.Rename("n");
    QCOMPARE(top.path, QString("n"));
}

void TstItem::renamedBranchTakesEverythingBelowAlong()
{
    Item folder = itemAt("a/old");
    folder.children.append(itemAt("a/old/old"));
    folder.children.append(itemAt("a/old/file.txt"));
    folder.children.first().children.append(itemAt("a/old/old/deep"));
    folder.RenameBranch("new");
    QCOMPARE(folder.path, QString("a/new"));
    QCOMPARE(folder.children.at(0).path, QString("a/new/old"));
    QCOMPARE(folder.children.at(0).children.at(0).path, QString("a/new/old/deep"));
    QCOMPARE(folder.children.at(1).path, QString("a/new/file.txt"));
}

// Whoever holds a pointer to an entry still holds it after the copy or the original has changed.
void TstItem::copyHasEntriesOfItsOwn()
{
    Item folder = itemAt("a");
    folder.children.append(itemAt("a/file.txt"));
    const Item* const entry = &qAsConst(folder).children.first();
    Item copied(folder);
    Item assigned = itemAt("other");
    assigned.children.append(itemAt("other/file.txt"));
    assigned = folder;
    Item& self = folder;
    folder = self;
    for (Item* const copy : {&copied, &assigned}) {
        QCOMPARE(copy->path, QString("a"));
        QCOMPARE(copy->children.size(), 1);
        QCOMPARE(copy->children.first().path, QString("a/file.txt"));
        copy->children.first().path = "changed";
    }
    QCOMPARE(folder.children.size(), 1);
    QCOMPARE(&folder.children.first(), entry);
    QCOMPARE(entry->path, QString("a/file.txt"));
}

void TstItem::itemPointerTravelsInAVariant()
{
    Item item;
    const QVariant variant = QVariant::fromValue(&item);
    QCOMPARE(variant.userType(), QMetaType::type("Item*"));
    QCOMPARE(QMetaObject::normalizedType("Item *"), QByteArray(variant.typeName()));
    QCOMPARE(variant.value<Item*>(), &item);
}

KORVEX_TEST_MAIN(TstItem)
#include "tst_item.moc"
