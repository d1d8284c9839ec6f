// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "createpagefixture.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QLoggingCategory>
#include <QRadioButton>

namespace
{

constexpr qint64 overTheLimit = (qint64(1) << 32) + 1;

} // namespace

// A file of more than 4 GB, which no type of image takes: the tool refuses at once and writes
// nothing, and the page says what it says after every run.
class TstCreateLargeFile : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void noImageOfAnyType_data();
    void noImageOfAnyType();
    void imageWithoutTheFileIsWritten();

private:
    std::unique_ptr<CreatePageFixture> fixture;
    QString staged;
};

// It has grown where it was copied to, as copying so much would take its time.
void TstCreateLargeFile::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    staged = CreatePageFixture::stagingFolder() + "/large.bin";
    fixture->addStaged("small.txt", "small");
    fixture->addStaged("large.bin");
    QVERIFY(QFile::resize(staged, overTheLimit));
}

void TstCreateLargeFile::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCreateLargeFile::noImageOfAnyType_data()
{
    QTest::addColumn<qint64>("bytes");
    for (const char* const type : {"jolet", "iso9600", "udf"})
        QTest::newRow(type) << overTheLimit;
    QTest::newRow("udf, the smallest that is refused") << (qint64(1) << 32) - 1;
}

void TstCreateLargeFile::noImageOfAnyType()
{
    QFETCH(qint64, bytes);
    QVERIFY(QFile::resize(staged, bytes));
    const QString type = QString(QTest::currentDataTag()).section(',', 0, 0);
    fixture->page->findChild<QRadioButton*>(type)->click();
    const QString image = fixture->path(type + ".iso");
    QLoggingCategory::setFilterRules("korvex.tooloutput.debug=true");
    fixture->startCreating(image);
    const QString text = fixture->waitForMessage();
    QLoggingCategory::setFilterRules({});
    QCOMPARE(text, QString("Create ISO successfully!"));
    QVERIFY(!QFileInfo::exists(image));
    QVERIFY(debugLines().join(' ').contains("is larger than 4GiB-1"));
    QVERIFY(fixture->isUsable());
}

void TstCreateLargeFile::imageWithoutTheFileIsWritten()
{
    fixture->select(fixture->row({"large.bin"}));
    fixture->removeSelected();
    const QString image = fixture->path("small.iso");
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QVERIFY(!QFileInfo::exists(staged));
    QVERIFY(QFileInfo(image).size() > 100000);
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstCreateLargeFile)
#include "tst_createlargefile.moc"
