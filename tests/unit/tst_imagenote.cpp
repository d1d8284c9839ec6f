// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagenote.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

// Leaving and taking the note about the image that is to be written, and finding its disk.
class TstImageNote : public TestCase
{
    Q_OBJECT

private slots:
    void noteIsTakenOnce();
    void laterNoteReplacesTheEarlier();
    void everyPathComesBack_data();
    void everyPathComesBack();
    void noNote();
    void onlyTheUserReadsIt();
    void linkInItsPlaceIsNotFollowed();
    void diskThatHoldsAVolume_data();
    void diskThatHoldsAVolume();
};

void TstImageNote::noteIsTakenOnce()
{
    const QTemporaryDir folder;
    leaveImageNote(folder.filePath("new/session"), "/x.iso");
    QCOMPARE(takeImageNote(folder.filePath("new/session")), QString("/x.iso"));
    QCOMPARE(takeImageNote(folder.filePath("new/session")), QString());
    QCOMPARE(entriesOf(folder.filePath("new/session")), QStringList());
}

void TstImageNote::laterNoteReplacesTheEarlier()
{
    const QTemporaryDir folder;
    leaveImageNote(folder.path(), "/a long path/x.iso");
    leaveImageNote(folder.path(), "/y.iso");
    QCOMPARE(takeImageNote(folder.path()), QString("/y.iso"));
}

void TstImageNote::everyPathComesBack_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("blanks at the ends") << "/a  b/x.iso ";
    QTest::newRow("line feed") << "/a\nb.iso\n";
    QTest::newRow("letters") << QString::fromUtf8("/Gr\u00fc\u00dfe/\u5149.iso");
    QTest::newRow("long") << '/' + QString(4000, 'x');
}

void TstImageNote::everyPathComesBack()
{
    QFETCH(QString, path);
    const QTemporaryDir folder;
    leaveImageNote(folder.path(), path);
    QCOMPARE(takeImageNote(folder.path()), path);
}

void TstImageNote::noNote()
{
    const QTemporaryDir folder;
    QCOMPARE(takeImageNote(folder.path()), QString());
    QCOMPARE(takeImageNote(folder.filePath("missing")), QString());
}

void TstImageNote::onlyTheUserReadsIt()
{
    const QTemporaryDir folder;
    const mode_t before = ::umask(0);
    leaveImageNote(folder.path(), "/x.iso");
    ::umask(before);
    const QStringList entries = entriesOf(folder.path());
    QCOMPARE(entries.size(), 1);
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(folder.filePath(entries.first())).constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode), 0100600);
}

void TstImageNote::linkInItsPlaceIsNotFollowed()
{
    const QTemporaryDir folder;
    const QString session = folder.filePath("session");
    leaveImageNote(session, "/x.iso");
    const QString note = session + '/' + entriesOf(session).first();
    writeFile(folder.filePath("victim"), "untouched");
    QVERIFY(QFile::remove(note) && QFile::link(folder.filePath("victim"), note));
    leaveImageNote(session, "/y.iso");
    QCOMPARE(readFile(folder.filePath("victim")), QByteArray("untouched"));
    QCOMPARE(takeImageNote(session), QString("/y.iso"));
}

void TstImageNote::diskThatHoldsAVolume_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("holds");
    QTest::newRow("partition") << "/dev/sdb1"
                               << "/media/u/A" << true;
    QTest::newRow("disk without partitions") << "/dev/sdb"
                                             << "/media/u/A" << true;
    QTest::newRow("encrypted volume") << "/dev/mapper/secret"
                                      << "/media/u/S" << true;
    QTest::newRow("other name of the device") << "/dev/disk/by-label/S"
                                              << "/media/u/S" << true;
    QTest::newRow("other disk") << "/dev/sdc1"
                                << "/media/u/C" << false;
    QTest::newRow("longer name") << "/dev/sdb11"
                                 << "/media/u/AA" << false;
    QTest::newRow("none") << ""
                          << "" << false;
}

void TstImageNote::diskThatHoldsAVolume()
{
    QFETCH(QString, source);
    QFETCH(QString, path);
    BlockDevice secret;
    secret.path = "/dev/mapper/secret";
    secret.mountPoints = QStringList("/media/u/S");
    BlockDevice partition;
    partition.path = "/dev/sdb1";
    partition.children = {secret};
    BlockDevice disk;
    disk.path = "/dev/sdb";
    disk.children = {partition};
    QTEST(holdsVolume(disk, {source, path, {}, {}}), "holds");
}

KORVEX_TEST_MAIN(TstImageNote)

#include "tst_imagenote.moc"
