// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QApplication>
#include <QIcon>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextCodec>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

// Runs a command where everything is as it is here, but for one folder of ours in the root folder,
// with the program in it. $1: an empty folder, $2: the program, $3: the folder, then the command.
const char* const withAnotherRoot = R"(
    set -e
    root=$1; program=$2; folder=$3; shift 3
    mount -t tmpfs none "$root"
    for entry in /*; do
        case $entry in /Volumes|/volumes) continue ;; esac
        if [ -L "$entry" ]; then cp -P "$entry" "$root$entry"
        elif [ -d "$entry" ]; then mkdir "$root$entry"; mount --rbind "$entry" "$root$entry"
        fi
    done
    mkdir -p "$root$folder"
    cp "$program" "$root$folder/"
    exec chroot "$root" "$@"
)";

// The shipped program in a folder that may only be made in the root folder: in a file system of
// its own, which root may have and on most systems everybody, or else really there.
class PlacedProgram
{
public:
    explicit PlacedProgram(const QString& place)
        : folder(place)
    {
        for (const QStringList& options : {QStringList{"-m"}, QStringList{"-r", "-m"}}) {
            launcher =
                QStringList{"unshare"} + options +
                QStringList{"sh", "-c", withAnotherRoot, "sh", root.path(), KORVEX_PROGRAM, folder};
            if (run({"true"}) && process.exitCode() == 0)
                return;
        }
        launcher.clear();
        mayRemove = !QFileInfo::exists('/' + folder.section('/', 1, 1));
        QDir().mkpath(folder);
        QFile::copy(KORVEX_PROGRAM, path());
    }

    ~PlacedProgram()
    {
        if (launcher.isEmpty() && mayRemove)
            QDir('/' + folder.section('/', 1, 1)).removeRecursively();
    }

    // Whether it runs and ends.
    bool run() { return run({path()}); }
    int exitCode() const { return process.exitCode(); }
    QByteArray said() { return process.readAllStandardOutput(); }
    QByteArray complaints() { return process.readAllStandardError(); }

private:
    QString path() const { return folder + '/' + QFileInfo(KORVEX_PROGRAM).fileName(); }

    bool run(const QStringList& command)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_PLUGIN_PATH", KORVEX_TEST_PLUGINS);
        environment.insert("QT_QPA_GENERIC_PLUGINS", "dialoganswerer");
        environment.insert("LC_ALL", "C.UTF-8");
        process.setProcessEnvironment(environment);
        QStringList words = launcher + command;
        const QString first = words.takeFirst();
        process.start(first, words);
        return process.waitForFinished(60'000) && process.exitStatus() == QProcess::NormalExit;
    }

    const QTemporaryDir root;
    const QString folder;
    QStringList launcher;
    QProcess process;
    bool mayRemove = false;
};

} // namespace

// The steps between the process entry and the main window, in a process that has taken them.
class TstStartup : public TestCase
{
    Q_OBJECT

private slots:
    void everybodyMayReadAndWriteWhatIsCreated();
    void textIsUtf8WhateverTheLocale();
    void picturesAreSharpOnDenseScreens();
    void platformToolsComeFirst();
    void platformToolsNeedTheirFolder();
    void mountedImageIsRefused_data();
    void mountedImageIsRefused();
    void refusalHasNoSecondButton();
    void otherFoldersAreNotRefused_data();
    void otherFoldersAreNotRefused();
    void programBelowVolumesTellsAndEnds();
    void programBelowAFolderLikeItStarts();
    void applicationHasItsFontIconAndStyle();
};

void TstStartup::everybodyMayReadAndWriteWhatIsCreated()
{
    const mode_t mask = ::umask(0);
    QCOMPARE(mask, mode_t(0));
    const QTemporaryDir folder;
    writeFile(folder.filePath("sub/file"), "x");
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(folder.filePath("sub/file")), &status), 0);
    QCOMPARE(status.st_mode & 0777u, 0666u);
    QCOMPARE(::stat(QFile::encodeName(folder.filePath("sub")), &status), 0);
    QCOMPARE(status.st_mode & 0777u, 0777u);
}

void TstStartup::textIsUtf8WhateverTheLocale()
{
    QCOMPARE(QTextCodec::codecForLocale()->name(), QByteArray("UTF-8"));
}

void TstStartup::picturesAreSharpOnDenseScreens()
{
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
}

void TstStartup::platformToolsComeFirst()
{
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir folder;
    writeFile(folder.filePath("platform-tools/diskutil"), "x");
    const QByteArray tools = QFile::encodeName(folder.filePath("platform-tools"));
    usePlatformTools(folder.path());
    const QByteArray first = qgetenv("PATH");
    qunsetenv("PATH");
    usePlatformTools(folder.path());
    const QByteArray alone = qgetenv("PATH");
    qputenv("PATH", path);
    QCOMPARE(first, tools + ':' + path);
    QCOMPARE(alone, tools);
}

void TstStartup::platformToolsNeedTheirFolder()
{
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir folder;
    usePlatformTools(folder.path());
    QCOMPARE(qgetenv("PATH"), path);
}

void TstStartup::mountedImageIsRefused_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("application on an image")
        << "/Volumes/Korvex ISO Editor/Korvex ISO Editor.app/Contents/MacOS";
    QTest::newRow("the folder itself") << "/Volumes";
    QTest::newRow("any folder whose name begins like it") << "/VolumesX/MacOS";
}

void TstStartup::mountedImageIsRefused()
{
    QFETCH(QString, folder);
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    QVERIFY(refuseToRunFrom(folder));
    QCOMPARE(driver.texts(), QStringList("Please drag the icon to Application folder first!"));
}

void TstStartup::refusalHasNoSecondButton()
{
    ModalDriver driver;
    bool hasSecond = true;
    driver.run("CommDialog", [&hasSecond](QWidget* dialog) {
        hasSecond = dialog->findChild<QWidget*>("btncancel")->isVisible();
        dialog->close();
    });
    QVERIFY(refuseToRunFrom("/Volumes/x"));
    QVERIFY(!hasSecond);
}

void TstStartup::otherFoldersAreNotRefused_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("applications") << "/Applications/Korvex ISO Editor.app/Contents/MacOS";
    QTest::newRow("lower case") << "/volumes/Korvex ISO Editor";
    QTest::newRow("further down") << "/Users/u/Volumes/x";
    QTest::newRow("relative") << "Volumes/x";
    QTest::newRow("empty") << "";
}

// A message would be a dialog that nobody expects.
void TstStartup::otherFoldersAreNotRefused()
{
    QFETCH(QString, folder);
    const ModalDriver driver;
    QVERIFY(!refuseToRunFrom(folder));
}

void TstStartup::programBelowVolumesTellsAndEnds()
{
    PlacedProgram program("/Volumes/Korvex ISO Editor");
    QVERIFY2(program.run(), program.complaints());
    QCOMPARE(program.said(), QByteArray("Please drag the icon to Application folder first!\n"));
    QCOMPARE(program.exitCode(), 0);
}

void TstStartup::programBelowAFolderLikeItStarts()
{
    PlacedProgram program("/volumes/Korvex ISO Editor");
    QVERIFY2(program.run(), program.complaints());
    QCOMPARE(program.said(), QByteArray("MainWindow\n"));
    QCOMPARE(program.exitCode(), 3);
}

void TstStartup::applicationHasItsFontIconAndStyle()
{
    setApplicationLook();
    QCOMPARE(QApplication::font().family(), QString("Microsoft YaHei"));
    QVERIFY(!QApplication::windowIcon().pixmap(64, 64).isNull());
    QVERIFY(qApp->styleSheet().contains("QHeaderView::section"));
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstStartup)
#include "tst_startup.moc"
