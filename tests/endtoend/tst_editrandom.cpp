// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "answerdialog.h"
#include "chosenpaths.h"
#include "clineedit.h"
#include "editmodel.h"
#include "editsavefixture.h"
#include "imagemaker.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QRandomGenerator>

namespace
{

constexpr int rounds = 4;
constexpr int sequences = 30; // of each round, which begins with a load and ends with a save
constexpr int operations = 12;
constexpr int maxDepth = 5;

void collectPaths(const Item& folder, QStringList& paths, QSet<QString>& folders)
{
    for (const Item& child : folder.children) {
        paths.append(child.path);
        if (child.isDir)
            folders.insert(child.path);
        collectPaths(child, paths, folders);
    }
}

void collectNodes(const QTreeWidgetItem* node, const QString& above, QStringList& paths)
{
    for (int i = 0; i < node->childCount(); ++i) {
        paths.append(above + node->child(i)->text(0));
        collectNodes(node->child(i), paths.last() + '/', paths);
    }
}

} // namespace

// Random edits with the real tools: the page, its work folder and the saved image against a model
// of what the edits mean. The seed is fixed, so that a failure comes again.
class TstEditRandom : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pageAgreesWithTheModel_data();
    void pageAgreesWithTheModel();

private:
    void load();
    void doSomething();
    void addSome(bool isFolder);
    void tickSome();
    void openSomeRow();
    void openSomeNode();
    void exportTicked();
    void checkAgreement();
    void checkSaved();
    int random(int bound) { return generator.bounded(bound); }

    QTemporaryDir folder;
    QString image;
    std::unique_ptr<EditSaveFixture> fixture;
    EditModel model;
    QRandomGenerator generator;
    QString newName;
    QMap<QString, int> done; // how often, by what
};

void TstEditRandom::initTestCase()
{
    setApplicationLook();
    const QString tree = folder.filePath("tree");
    for (int i = 0; i < 12; ++i)
        writeFile(tree + QString("/file %1.txt").arg(i), QByteArray::number(i * 1000));
    for (const char* const name : {"alpha/a1", "alpha/a2", "alpha/inner/a3", "beta/b1",
                                   "beta/inner/deep/b2", "beta/inner/b3", "gamma/g1"})
        writeFile(tree + '/' + name, name);
    QVERIFY(QDir().mkpath(tree + "/empty"));
    image = folder.filePath("image.iso");
    makeImage(tree, image);
    const QString disk = folder.filePath("disk");
    for (const char* const name :
         {"new 1.txt", "new 2.txt", "new 3.txt", "dir 1/n1", "dir 1/n2", "dir 1/sub/n3",
          "dir 2/sub 1/n4", "dir 2/sub 2/n5", "file 3.txt"})
        writeFile(disk + '/' + name, QByteArray("disk ") + name);
    QVERIFY(QDir().mkpath(disk + "/dir 3"));
}

void TstEditRandom::load()
{
    fixture = std::make_unique<EditSaveFixture>();
    ChosenPaths::set({image});
    fixture->page->OnLoadISO();
    QVERIFY(fixture->waitUntilListed());
    model = EditModel();
    const auto hashes = hashesBelow(folder.filePath("tree"));
    QStringList paths;
    QSet<QString> folders;
    const QTreeWidgetItem* const top = fixture->tree()->topLevelItem(0);
    collectPaths(*top->data(0, Qt::UserRole).value<Item*>(), paths, folders);
    for (const QString& path : qAsConst(paths))
        model.addFromImage(path, folders.contains(path), hashes.value(path));
    QCOMPARE(QStringList(model.hashes().keys()), QStringList(hashes.keys()));
    model.open(QString());
}

void TstEditRandom::tickSome()
{
    model.ticked.clear();
    const int rows = model.rows.size();
    for (int i = 0; i < 1 + random(3); ++i)
        model.ticked.insert(random(rows));
    for (int row = 0; row < rows; ++row)
        fixture->table()->item(row, 0)->setCheckState(model.ticked.contains(row) ? Qt::Checked
                                                                                 : Qt::Unchecked);
}

void TstEditRandom::openSomeRow()
{
    const int row = random(model.rows.size());
    fixture->table()->setCurrentCell(row, 0);
    fixture->page->OnListViewDoubleClicked();
    if (model.isFolder(model.pathOfRow(row)))
        model.open(model.pathOfRow(row));
}

// The one above the folder that is shown, or any other.
void TstEditRandom::openSomeNode()
{
    const QStringList folders = QStringList(QString()) + model.paths(true);
    const QString wanted = random(2) ? model.shown.left(qMax(0, model.shown.lastIndexOf('/')))
                                     : folders.at(random(folders.size()));
    QTreeWidgetItem* node = fixture->tree()->topLevelItem(0);
    for (const QString& name : wanted.split('/', Qt::SkipEmptyParts)) {
        int i = 0;
        while (i < node->childCount() && node->child(i)->text(0) != name)
            ++i;
        node = node->child(i);
        QVERIFY2(node, qPrintable("no node for " + wanted));
    }
    fixture->tree()->setCurrentItem(node);
    fixture->page->OnTreeCurrentChanged();
    model.open(wanted);
}

void TstEditRandom::exportTicked()
{
    const QTemporaryDir target;
    ChosenPaths::set({target.path()});
    fixture->page->OnExport();
    const auto found = hashesBelow(target.path());
    QCOMPARE(found.keys(), model.exported().keys());
    QVERIFY(found == model.exported());
}

void TstEditRandom::addSome(bool isFolder)
{
    static const QStringList files{"new 1.txt", "new 2.txt", "new 3.txt", "file 3.txt"};
    static const QStringList folders{"dir 1", "dir 2", "dir 3"};
    const QStringList& names = isFolder ? folders : files;
    QStringList paths;
    for (int i = 0; i < 1 + random(2); ++i)
        paths.append(folder.filePath("disk/" + names.at(random(names.size()))));
    ChosenPaths::set(paths);
    fixture->page->OnAdd();
    for (const QString& path : qAsConst(paths))
        model.addFromDisk(path);
    ++done[isFolder ? "add folder" : "add file"];
}

void TstEditRandom::doSomething()
{
    static const QStringList searches{"", "", "", "f", "NEW", "1", "no such"};
    const int what = random(40);
    const bool needsRow = what >= 12 && what < 31;
    if (needsRow && model.rows.isEmpty())
        return openSomeNode();
    if (what < 12) {
        addSome(what < 5 && model.shown.count('/') < maxDepth);
    } else if (what < 17) {
        tickSome();
        fixture->page->OnDelete();
        model.deleteTicked();
        ++done["delete"];
    } else if (what < 23) {
        tickSome();
        newName = QString("renamed %1").arg(random(8));
        fixture->page->OnRename();
        model.renameTicked(newName);
        ++done["rename"];
    } else if (what < 24) {
        tickSome();
        exportTicked();
        ++done["export"];
    } else if (what < 31) {
        openSomeRow();
        ++done["open row"];
    } else if (what < 35) {
        openSomeNode();
        ++done["open node"];
    } else if (what < 38) {
        const QString text = searches.at(random(searches.size()));
        fixture->search()->setText(text);
        model.search(text);
        ++done["search"];
    } else {
        const bool on = random(2);
        fixture->page->slotSelectAll(on);
        model.ticked.clear();
        for (int row = 0; on && row < model.rows.size(); ++row)
            model.ticked.insert(row);
        ++done["select all"];
    }
}

void TstEditRandom::checkAgreement()
{
    QCOMPARE(fixture->shownNames(), model.rows);
    QSet<int> ticked;
    for (int row = 0; row < fixture->table()->rowCount(); ++row) {
        if (fixture->table()->item(row, 0)->checkState() == Qt::Checked)
            ticked.insert(row);
    }
    QVERIFY(ticked == model.ticked);
    QStringList paths;
    QSet<QString> folders;
    const QTreeWidgetItem* const top = fixture->tree()->topLevelItem(0);
    collectPaths(*top->data(0, Qt::UserRole).value<Item*>(), paths, folders);
    QCOMPARE(paths, model.paths());
    QStringList nodes;
    collectNodes(top, QString(), nodes);
    QCOMPARE(nodes, model.paths(true));
    QVERIFY(fixture->waitUntilWorked());
    const auto found = hashesBelow(EditPageFixture::workFolder());
    QCOMPARE(found.keys(), model.hashes().keys());
    QVERIFY(found == model.hashes());
}

void TstEditRandom::checkSaved()
{
    const QString isoPath = folder.filePath("saved.iso");
    ChosenPaths::set({isoPath});
    QFile::remove(isoPath);
    fixture->page->OnSave();
    QCOMPARE(fixture->waitForMessage(), QString("Save ISO file successfully!"));
    const auto saved = EditSaveFixture::contentOf(isoPath);
    QCOMPARE(saved.keys(), model.hashes().keys());
    QVERIFY(saved == model.hashes());
}

void TstEditRandom::pageAgreesWithTheModel_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= rounds; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TstEditRandom::pageAgreesWithTheModel()
{
    QFETCH(quint32, seed);
    generator.seed(seed);
    QTimer answers;
    connect(&answers, &QTimer::timeout, [this] { answerDialog(newName); });
    load();
    answers.start(1);
    for (int sequence = 0; sequence < sequences; ++sequence) {
        for (int i = 0; i < operations; ++i) {
            doSomething();
            if (QTest::currentTestFailed())
                return;
        }
        checkAgreement();
        if (QTest::currentTestFailed()) {
            qDebug() << "sequence" << sequence;
            return;
        }
    }
    answers.stop();
    fixture->openRoot();
    model.open(QString());
    const QString added = folder.filePath("disk/new 1.txt");
    ChosenPaths::set({added});
    fixture->page->OnAdd(); // so that there is something to save
    model.addFromDisk(added);
    checkSaved();
    QCOMPARE(done.size(), 9); // every kind of them
    fixture.reset();
}

KORVEX_TEST_MAIN(TstEditRandom)
#include "tst_editrandom.moc"
