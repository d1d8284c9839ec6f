// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractsession.h"
#include "imagemaker.h"
#include "slowdisk.h"
#include "testcase.h"
#include "testmain.h"

#include <QLabel>
#include <QProgressBar>
#include <QTemporaryDir>

namespace
{

constexpr int fileCount = 40;
constexpr qint64 fileBytes = 15'000'000;

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
    void sixHundredMegabytes();
};

void TstExtractProgress::sixHundredMegabytes()
{
    const QTemporaryDir folder;
    QStringList names;
    for (quint32 i = 0; i < fileCount; ++i) {
        names.append(QString::fromUtf8("Teil %1 日本.bin").arg(i));
        writeRandomFile(folder.filePath("tree/" + names.last()), fileBytes, i);
    }
    const QString image = folder.filePath("large.iso");
    makeImage(folder.filePath("tree"), image);
    const auto originals = hashesBelow(folder.filePath("tree"));
    QVERIFY(QDir(folder.filePath("tree")).removeRecursively());

    ExtractSession session;
    QVERIFY(session.load(image));
    QVERIFY(session.tick(names));
    const QString output = folder.filePath("out");
    QVERIFY(QDir().mkpath(output));
    session.beginExtraction(output);
    QList<int> values;
    QStringList texts;
    connect(session.progressBar(), &QProgressBar::valueChanged, this, [&](int value) {
        values.append(value);
        texts.append(session.progressText()->text());
    });
    {
        const SlowDisk slowDisk;
        QCOMPARE(session.waitForSuccess(), QString("Extract files successfully."));
    }
    QVERIFY2(values.size() >= 5, qPrintable(QString("%1 updates").arg(values.size())));
    QVERIFY(std::is_sorted(values.begin(), values.end()));
    QVERIFY(values.last() <= 100);
    for (const QString& text : qAsConst(texts))
        QVERIFY2(!hasControlCharacter(text), qPrintable(text));
    QVERIFY(texts.last().startsWith("Extracting files: Teil "));
    QCOMPARE(hashesBelow(output), originals);
}

KORVEX_TEST_MAIN(TstExtractProgress)
#include "tst_extractprogress.moc"
