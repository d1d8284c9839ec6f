// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "cimagebutton.h"
#include "drivescenario.h"
#include "markedtranslator.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"

#include <QLabel>
#include <QRadioButton>

// A change of language while the Burn page shows. One page goes through all of them.
class TstCBurnDialogLanguage : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void languageChangeReachesLabelsAndTitle();
    void languageChangeReachesTheAccessibleNames();
    void languageChangeReachesThePartitionStyles();
    void browseButtonSaysBrowserAfterTheFirstLanguageChange();
    void fileSystemsAndDrivesAreNeverTranslated();
    void languageChangeKeepsWhatTheUserHasEntered();
    void languageChangeLooksForNoDrives();

private:
    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
};

namespace
{

// A change of language as the program makes it, undone at the end.
class OtherLanguage
{
public:
    OtherLanguage()
    {
        QCoreApplication::installTranslator(&marked);
        QCoreApplication::processEvents();
    }
    ~OtherLanguage()
    {
        QCoreApplication::removeTranslator(&marked);
        QCoreApplication::processEvents();
    }

private:
    MarkedTranslator marked;
};

} // namespace

void TstCBurnDialogLanguage::initTestCase()
{
    setApplicationLook();
    drives = std::make_unique<DriveScenario>();
    drives->addUsbDisk("/dev/disk2");
    drives->addUsbDisk("/dev/disk3");
    drives->addOptical(" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4");
    fixture = std::make_unique<BurnPageFixture>();
}

void TstCBurnDialogLanguage::cleanupTestCase()
{
    fixture.reset();
    drives.reset();
}

void TstCBurnDialogLanguage::languageChangeReachesLabelsAndTitle()
{
    const auto labels = fixture->page->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(labels.size(), 8);
    QStringList english;
    for (const QLabel* const label : labels)
        english.append(label->text());
    {
        const OtherLanguage language;
        QCOMPARE(fixture->page->windowTitle(), QString("<Dialog>"));
        for (int i = 0; i < labels.size(); ++i)
            QCOMPARE(labels[i]->text(), '<' + english[i] + '>');
    }
    for (int i = 0; i < labels.size(); ++i)
        QCOMPARE(labels[i]->text(), english[i]);
    QCOMPARE(fixture->page->windowTitle(), QString("Dialog"));
}

void TstCBurnDialogLanguage::languageChangeReachesTheAccessibleNames()
{
    const OtherLanguage language;
    QCOMPARE(fixture->page->findChild<QRadioButton*>("rusb")->accessibleName(),
             QString("<Create A Bootable USB>"));
    QCOMPARE(fixture->line("volumelab")->accessibleName(), QString("<Volume Label(Max 11 Chars)>"));
}

void TstCBurnDialogLanguage::languageChangeReachesThePartitionStyles()
{
    const OtherLanguage language;
    QCOMPARE(BurnPageFixture::textsOf(fixture->list("ptlist")),
             QStringList({"<MBR(for legacy BIOS/CSM boot)>", "<GPT(required for UEFI boot)>"}));
}

// Two different texts, both on purpose.
void TstCBurnDialogLanguage::browseButtonSaysBrowserAfterTheFirstLanguageChange()
{
    const BurnPageFixture opened;
    QCOMPARE(opened.button("browser")->accessibleName(), QString("Browse"));
    {
        const OtherLanguage language;
        QCOMPARE(opened.button("browser")->accessibleName(), QString("<Browser>"));
        QCOMPARE(opened.button("back")->accessibleName(), QString("<Back>"));
        QCOMPARE(opened.button("burn")->accessibleName(), QString("<Burn>"));
    }
    QCOMPARE(opened.button("browser")->accessibleName(), QString("Browser"));
    QCOMPARE(opened.button("back")->accessibleName(), QString("Back"));
    QCOMPARE(opened.button("burn")->accessibleName(), QString("Burn"));
}

void TstCBurnDialogLanguage::fileSystemsAndDrivesAreNeverTranslated()
{
    const OtherLanguage language;
    QCOMPARE(BurnPageFixture::textsOf(fixture->list("sysfilelist")), QStringList({"FAT32", "FAT"}));
    QCOMPARE(BurnPageFixture::textsOf(fixture->list("usblist")),
             QStringList({"/dev/disk2", "/dev/disk3"}));
    QCOMPARE(BurnPageFixture::textsOf(fixture->list("dvdlist")),
             QStringList("HL-DT-ST DVDRAM GP65NS60 PF00 (/dev/disk4)"));
}

void TstCBurnDialogLanguage::languageChangeKeepsWhatTheUserHasEntered()
{
    fixture->chooseUsb();
    fixture->setImage("/images/a.iso");
    fixture->line("volumelab")->setText("MY STICK");
    fixture->list("usblist")->setCurrentIndex(1);
    fixture->list("sysfilelist")->setCurrentIndex(1);
    const OtherLanguage language;
    QCOMPARE(fixture->line("isofile")->text(), QString("/images/a.iso"));
    QCOMPARE(fixture->line("volumelab")->text(), QString("MY STICK"));
    QCOMPARE(fixture->list("usblist")->currentIndex(), 1);
    QCOMPARE(fixture->list("sysfilelist")->currentIndex(), 1);
    QCOMPARE(fixture->list("ptlist")->currentIndex(), 0);
    QVERIFY(fixture->page->findChild<QRadioButton*>("rusb")->isChecked());
    QVERIFY(fixture->list("usblist")->isEnabled());
}

void TstCBurnDialogLanguage::languageChangeLooksForNoDrives()
{
    const int before = drives->calls().size();
    const OtherLanguage language;
    QCOMPARE(drives->calls().size(), before);
}

KORVEX_TEST_MAIN(TstCBurnDialogLanguage)
#include "tst_cburndialog_language.moc"
