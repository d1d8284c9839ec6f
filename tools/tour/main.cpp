// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The guided tour: starts the program as its own main function does, uses it as a user would on
// real files and leaves a picture of every step with what came out.
//
//   korvex-tour --output FOLDER [--readme-pictures FOLDER]

#include "languages.h"
#include "mainwindow.h"
#include "startup.h"
#include "tour.h"
#include "tourfailure.h"
#include "util.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLoggingCategory>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>

namespace
{

struct Options
{
    QString output;
    QString readmePictures;
};

Options readOptions(const QCoreApplication& application)
{
    QCommandLineParser parser;
    const QCommandLineOption output("output", "Folder for pictures and results.", "folder");
    const QCommandLineOption readme("readme-pictures", "Folder for the pictures of the README.",
                                    "folder");
    parser.addOptions({output, readme});
    parser.addHelpOption();
    parser.process(application);
    if (!parser.isSet(output))
        parser.showHelp(EXIT_FAILURE);
    return {QDir(parser.value(output)).absolutePath(),
            parser.isSet(readme) ? QDir(parser.value(readme)).absolutePath() : QString()};
}

// The user, who is not the program: takes the tour and ends the program after it.
class Visitor : public QThread
{
public:
    Visitor(const Options& newOptions, const QString& newHome)
        : options(newOptions)
        , home(newHome)
    {
    }

protected:
    void run() override
    {
        try {
            visit();
            QCoreApplication::exit(EXIT_SUCCESS);
        } catch (const TourFailure& failure) {
            std::fprintf(stderr, "The tour failed. %s\n", qPrintable(failure.reason));
            QCoreApplication::exit(EXIT_FAILURE);
        }
    }

private:
    void visit() const
    {
        const User user;
        Album album(options.output);
        DriveScenario drives;
        Tour tour{user, album, home, makeSampleImage(home), drives};
        try {
            tourHome(tour);
            tourExtract(tour);
            tourCreate(tour);
            tourEdit(tour);
            tourBurn(tour);
            tourDiscCopy(tour);
        } catch (const TourFailure& failure) {
            album.add("failed", user.photograph(), "FAILED: " + failure.reason);
            throw;
        }
        if (options.readmePictures.isEmpty())
            return;
        require(QDir().mkpath(options.readmePictures), "Cannot be made: " + options.readmePictures);
        album.copyPicture("home", options.readmePictures + "/home.png");
        album.copyPicture("extract-ticked", options.readmePictures + "/extract.png");
        album.copyPicture("extract-progress", options.readmePictures + "/extract-progress.png");
        album.copyPicture("create-filled", options.readmePictures + "/create.png");
        album.copyPicture("create-progress", options.readmePictures + "/create-progress.png");
        album.copyPicture("edit-changed", options.readmePictures + "/edit.png");
        album.copyPicture("burn-stick", options.readmePictures + "/burn.png");
        album.copyPicture("disccopy-filled", options.readmePictures + "/disccopy.png");
    }

    Options options;
    QString home;
};

// What a window manager would do, where there may be none.
void placeInTheMiddle(QWidget& window)
{
    const QRect screen = window.screen()->availableGeometry();
    window.move(screen.center() - window.rect().center());
}

} // namespace

int main(int argc, char* argv[])
{
    // The texts that the tour expects are English, wherever it is taken.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QLoggingCategory::setFilterRules("default.debug=false");

    prepareProcess();
    QApplication application(argc, argv);
    const Options options = readOptions(application);
    // The user of the tour has a home of his own: file dialogs show it, the program writes there.
    const QTemporaryDir folder(QDir::tempPath() + "/tour-XXXXXX");
    const QString home = folder.path() + "/home";
    if (!folder.isValid() || !QDir().mkpath(home) || !QDir::setCurrent(home)) {
        std::fprintf(stderr, "Cannot be made: %s\n", qPrintable(home));
        return EXIT_FAILURE;
    }
    qputenv("HOME", QFile::encodeName(home));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home + "/.local/share"));
    if (refuseToRunFrom(Util::GetCurrentExePath()))
        return EXIT_FAILURE;
    setApplicationLook();
    QTranslator translator;
    loadTranslationOf(QLocale(), translator);
    QCoreApplication::installTranslator(&translator);
    MainWindow window(nullptr);
    placeInTheMiddle(window);
    window.show();

    Visitor visitor(options, home);
    visitor.start();
    const int status = QApplication::exec();
    visitor.wait();
    std::printf("%s\n", qPrintable(options.output));
    return status;
}
