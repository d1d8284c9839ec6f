// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractsession.h"
#include "imagemaker.h"
#include "testcase.h"
#include "testmain.h"
#include "toolstopper.h"

#include <QLabel>
#include <QProgressBar>
#include <QTemporaryDir>

namespace
{

constexpr int fileCount = 40;
constexpr qint64 fileBytes = 100'000;
// At which files the archiver is held, and how long: it tells its progress at the next sign of it
// when so much time has passed, however fast it works.
const QList<int> holds{5, 12, 20, 28, 36};
constexpr int tellingMs = 300;
constexpr int limitMs = 60000;

int percentOf(int files)
{
    return 100 * files / fileCount;
}

bool hasControlCharacter(const QString& text)
{
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control)
            return true;
    }
    return false;
}

} // namespace

class TstExtractProgress : public TestCase
{
    Q_OBJECT

private slots:
    void barFollowsTheArchiver();
};

void TstExtractProgress::barFollowsTheArchiver()
{
    const QTemporaryDir folder;
    QStringList names;
    for (quint32 i = 0; i < fileCount; ++i) {
        names.append(QString::fromUtf8("Teil %1 日本.bin").arg(i, 2, 10, QChar('0')));
        writeRandomFile(folder.filePath("tree/" + names.last()), fileBytes, i);
    }
    const QString image = folder.filePath("large.iso");
    makeImage(folder.filePath("tree"), image);
    const auto originals = hashesBelow(folder.filePath("tree"));

    ExtractSession session;
    QVERIFY(session.load(image));
    QVERIFY(session.tick(names));
    const QString output = folder.filePath("out");
    QVERIFY(QDir().mkpath(output));
    ToolStopper archiver("x");
    session.beginExtraction(output);
    QList<int> values;
    QStringList texts;
    connect(session.progressBar(), &QProgressBar::valueChanged, this, [&](int value) {
        values.append(value);
        texts.append(session.progressText()->text());
    });
    for (const int number : holds) {
        const auto isAt = [&](int file) { return QFile::exists(output + '/' + names.at(file)); };
        QVERIFY(archiver.catchWhen([&] { return isAt(number); }));
        QTest::qWait(tellingMs);
        QVERIFY(archiver.catchWhen([&] { return isAt(number + 2); }));
        // It has told how far it was, and cannot have told of more than it has begun.
        QTRY_VERIFY_WITH_TIMEOUT(!values.isEmpty() && values.last() >= percentOf(number - 1),
                                 limitMs);
        QVERIFY2(values.last() <= percentOf(number + 3),
                 qPrintable(QString::number(values.last())));
    }
    archiver.letGo();
    QCOMPARE(session.waitForSuccess(), QString("Extract files successfully."));
    QVERIFY(values.size() >= holds.size());
    QVERIFY(std::is_sorted(values.begin(), values.end()));
    QVERIFY(values.last() <= 100);
    for (const QString& text : qAsConst(texts))
        QVERIFY2(!hasControlCharacter(text), qPrintable(text));
    QVERIFY(texts.last().startsWith("Extracting files: Teil "));
    QCOMPARE(hashesBelow(output), originals);
}

KORVEX_TEST_MAIN(TstExtractProgress)
#include "tst_extractprogress.moc"
