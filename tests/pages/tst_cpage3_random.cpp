// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "chosenpaths.h"
#include "cpage3.h"
#include "pagefixture.h"
#include "stagingmodel.h"
#include "stagingsources.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDirIterator>
#include <QLabel>
#include <QProgressBar>
#include <QRandomGenerator>
#include <QTreeWidget>

// Thousands of ways to add and remove, each step done to the page and to a model of it. A copy is
// not begun, in progress or done when its row is removed: a plug at the head of the queue holds
// everything behind it up, the plug itself is in progress, and without one every step is waited
// for.
class TstCPage3Random : public TestCase
{
    Q_OBJECT

private slots:
    void addingAndRemovingAtRandomFollowsTheModel();

private:
    using Place = StagingModel::Place;
    using Row = StagingModel::Row;
    using Disk = StagingModel::Disk;

    enum Kind
    {
        AddFiles,
        AddFolders,
        Remove,
        Plug
    };
    struct Step
    {
        Kind kind = AddFiles;
        QStringList paths;
        Place selected;
    };
    // What the steps have covered, so that the test cannot come to miss one of them.
    struct Seen
    {
        int beforeBegun = 0;
        int inProgress = 0;
        int done = 0;
        int refused = 0;
        int sourcesLost = 0;
        int misplaced = 0;
    };

    void runSequence();
    Step randomStep(const StagingModel& model);
    int sourcesIn(const StagingModel& model) const;
    Place randomPlace(const StagingModel& model);
    static QString textOf(const Step& step, const StagingModel& model);
    static void apply(const Step& step, StagingModel* model);
    void apply(const Step& step, CPage3* page);
    void count(const Step& step, const StagingModel& before, const StagingModel& after);
    bool settle(CPage3* page, StagingModel* model);
    void compareShown(const CPage3& page, const StagingModel& model) const;
    void compareDisk(const StagingModel& model);
    template<typename List>
    auto any(const List& list)
    {
        return list.at(random.bounded(int(list.size())));
    }

    StagingSources sources;
    QStringList usedFiles;
    QStringList usedFolders;
    QRandomGenerator random{20240607};
    int plugsUsed = 0;
    bool plugged = false;
    bool narrow = false;
    QStringList history;
    Seen seen;
};

namespace
{

QString stagingFolder()
{
    return Util::GetTempDir() + "/tmp";
}

StagingModel::Disk contentOf(const QString& path)
{
    StagingModel::Disk found;
    QDirIterator entries(path, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        if (entries.fileInfo().isDir())
            found.insert(entry.mid(path.size() + 1), std::nullopt);
        else
            found.insert(entry.mid(path.size() + 1), readFile(entry));
    }
    return found;
}

// One line per row, to be compared and to be read when it differs.
void describe(const QList<StagingModel::Row>& rows, const QString& prefix, QStringList* lines)
{
    for (const StagingModel::Row& row : rows) {
        lines->append(prefix + row.columns.join('|') + (row.isFolder ? "|1" : "|"));
        describe(row.children, prefix + "  ", lines);
    }
}

void describe(const QTreeWidgetItem* parent, const QString& prefix, QStringList* lines)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        const QTreeWidgetItem* const row = parent->child(i);
        QStringList columns;
        for (int column = 0; column < row->columnCount(); ++column)
            columns.append(row->text(column));
        lines->append(prefix + columns.join('|') + '|' + row->data(0, Qt::UserRole).toString());
        describe(row, prefix + "  ", lines);
    }
}

} // namespace

void TstCPage3Random::addingAndRemovingAtRandomFollowsTheModel()
{
    // So many that each case comes up; more of them on demand.
    const int wanted = qEnvironmentVariableIntValue("KORVEX_RANDOM_SEQUENCES");
    const int sequences = wanted > 0 ? wanted : 800;
    for (int i = 0; i < sequences; ++i) {
        runSequence();
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QString("in sequence %1: ").arg(i) + history.join("; ")));
    }
    qInfo("removed: %d before begun, %d in progress, %d done, %d refused; %d additions elsewhere "
          "than shown, %d sources lost",
          seen.beforeBegun, seen.inProgress, seen.done, seen.refused, seen.misplaced,
          seen.sourcesLost);
    // Each case has come up.
    for (const int times : {seen.beforeBegun, seen.inProgress, seen.done, seen.refused,
                            seen.misplaced, seen.sourcesLost})
        QVERIFY(times >= 5);
}

void TstCPage3Random::runSequence()
{
    sources.restore();
    CPage3 page(nullptr);
    StagingModel model(sources.content(), stagingFolder());
    QVERIFY(settle(&page, &model));
    history.clear();
    plugsUsed = 0;
    plugged = false;
    // Few, so that the same ones come again and again.
    usedFiles = QStringList{any(sources.files()), any(sources.files()), any(sources.files())};
    usedFolders = QStringList{any(sources.folders()), any(sources.folders())};
    // Half of them do nothing but add the same folder at the top, so that it meets what is left of
    // itself.
    narrow = random.bounded(2) == 0;
    if (narrow)
        usedFolders = QStringList(sources.folders().first());
    const int steps = 3 + int(random.bounded(narrow ? 12 : 8));
    for (int i = 0; i < steps; ++i) {
        const Step step = randomStep(model);
        history.append(textOf(step, model));
        const StagingModel before = model;
        apply(step, &model);
        apply(step, &page);
        count(step, before, model);
        compareShown(page, model);
        if (step.kind == Plug) {
            QVERIFY(sources.plug(plugsUsed++).waitUntilReached());
            model.begin();
            plugged = true;
        }
        if (!plugged || random.bounded(5) == 0) {
            history.append("wait");
            QVERIFY(settle(&page, &model));
        }
        if (QTest::currentTestFailed())
            break;
    }
    QVERIFY(settle(&page, &model));
    compareDisk(model);
}

int TstCPage3Random::sourcesIn(const StagingModel& model) const
{
    const QStringList paths = sources.content().keys();
    return int(std::count_if(paths.cbegin(), paths.cend(),
                             [&model](const QString& path) { return model.exists(path); }));
}

// One whose result depends neither on who runs the test nor on which thread is faster.
TstCPage3Random::Step TstCPage3Random::randomStep(const StagingModel& model)
{
    for (;;) {
        Step step{any(narrow ? QList<Kind>{AddFolders, AddFolders, Remove, Plug}
                             : QList<Kind>{AddFiles, AddFolders, Remove, Remove, Plug}),
                  {},
                  randomPlace(model)};
        if (step.kind == Plug) {
            if (plugged || plugsUsed == StagingSources::plugCount)
                continue;
            // Where its copy cannot fail.
            step.selected.clear();
            step.paths = QStringList(sources.plug(plugsUsed).path());
        } else if (step.kind != Remove) {
            if (narrow)
                step.selected.clear();
            for (int count = int(random.bounded(3)); count >= 0; --count)
                step.paths.append(any(step.kind == AddFiles ? usedFiles : usedFolders));
        }
        // The dialogs give no file that is gone.
        const auto isGone = [&model](const QString& path) { return !model.exists(path); };
        if (std::any_of(step.paths.cbegin(), step.paths.cend(), isGone))
            continue;
        StagingModel trial = model;
        apply(step, &trial);
        trial.settle();
        // A source that is lost at once may be gone before the page has measured it, or not.
        const bool isRace = !plugged && sourcesIn(trial) < sourcesIn(model);
        if (!trial.isMurky() && !isRace)
            return step;
    }
}

TstCPage3Random::Place TstCPage3Random::randomPlace(const StagingModel& model)
{
    const QList<Place> places = model.places();
    if (places.isEmpty() || random.bounded(4) == 0)
        return {};
    for (const Place& place : places) {
        if (model.isBegun(place) && random.bounded(narrow ? 2 : 4) == 0)
            return place;
    }
    const Place place = any(places);
    return narrow ? place.mid(0, 1) : place;
}

QString TstCPage3Random::textOf(const Step& step, const StagingModel& model)
{
    QString row;
    for (int depth = 1; depth <= step.selected.size(); ++depth)
        row += '/' + model.nameAt(step.selected.mid(0, depth));
    const QStringList kinds{"add files", "add folders", "remove", "plug"};
    return kinds.at(step.kind) + " at \"" + row + "\" " + step.paths.join(' ');
}

void TstCPage3Random::apply(const Step& step, StagingModel* model)
{
    if (step.kind == AddFiles)
        model->addFiles(step.paths, step.selected);
    else if (step.kind == Remove)
        model->remove(step.selected);
    else
        model->addFolders(step.paths, step.selected);
}

void TstCPage3Random::apply(const Step& step, CPage3* page)
{
    auto* const list = page->findChild<QTreeWidget*>("list");
    list->clearSelection();
    if (!step.selected.isEmpty()) {
        QTreeWidgetItem* row = list->invisibleRootItem();
        for (const int position : step.selected)
            row = row->child(position);
        row->setSelected(true);
    }
    ChosenPaths::set(step.paths);
    if (step.kind == AddFiles)
        page->OnAddFile();
    else if (step.kind == Remove)
        page->OnRemove();
    else
        page->OnAddDir();
}

void TstCPage3Random::count(const Step& step, const StagingModel& before, const StagingModel& after)
{
    const bool changed = before.places().size() != after.places().size();
    if (step.kind != Remove) {
        seen.refused += !changed;
        seen.misplaced += changed && !step.selected.isEmpty();
    } else if (changed && !plugged)
        ++seen.done;
    else if (changed && before.isBegun(step.selected))
        ++seen.inProgress;
    else if (changed)
        ++seen.beforeBegun;
}

// Lets what is in progress end and waits for all of it. Without events, which nothing here needs.
bool TstCPage3Random::settle(CPage3* page, StagingModel* model)
{
    if (plugged)
        sources.plug(plugsUsed - 1).release();
    plugged = false;
    model->settle();
    QElapsedTimer waited;
    waited.start();
    while (page->stagingQueue().HasTasks()) {
        if (waited.hasExpired(patienceMs))
            return false;
        QThread::usleep(20);
    }
    return true;
}

void TstCPage3Random::compareShown(const CPage3& page, const StagingModel& model) const
{
    QStringList expected;
    describe(model.rows(), QString(), &expected);
    QStringList actual;
    describe(page.findChild<QTreeWidget*>("list")->invisibleRootItem(), QString(), &actual);
    if (actual != expected)
        qInfo().noquote() << "shown:\n"
                          << actual.join('\n') << "\nexpected:\n"
                          << expected.join('\n');
    QCOMPARE(actual, expected);
    const auto bytes = model.shownBytes();
    QCOMPARE(page.findChild<QLabel*>("totalsize")->text(),
             bytes ? "Total Size: " + Util::SizeToString(*bytes) : "Total Size : 0 KB");
    QCOMPARE(page.findChild<QProgressBar*>("progressBar")->value(),
             int(bytes.value_or(0) * 100 / 5368709120));
}

void TstCPage3Random::compareDisk(const StagingModel& model)
{
    const Disk staged = contentOf(stagingFolder());
    const Disk expected = model.below(stagingFolder());
    if (staged != expected)
        qInfo() << "staged:" << staged.keys() << "\nexpected:" << expected.keys();
    QVERIFY(staged == expected);
    for (const QString& path : sources.content().keys()) {
        QCOMPARE(QFileInfo::exists(path), model.exists(path));
        seen.sourcesLost += !model.exists(path);
    }
}

KORVEX_TEST_MAIN(TstCPage3Random)
#include "tst_cpage3_random.moc"
