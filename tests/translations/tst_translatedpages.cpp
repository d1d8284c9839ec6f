// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "languages.h"
#include "mainwindow.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "textfit.h"
#include "translatedviews.h"
#include "tsfile.h"
#include "usermouse.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPainter>
#include <QSet>

// What the program shows in each of its languages: whether it fits, and pictures for looking at.
class TstTranslatedPages : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void textsFitOnPages_data();
    void textsFitOnPages();
    void textsFitInDialogs_data();
    void textsFitInDialogs();
    void menusArePhotographed();
    void everyTextIsMeasured();

private:
    void visitInEveryLanguage(const TranslatedView& view);

    std::unique_ptr<MainWindow> window;
};

namespace
{

const QString folder(KORVEX_SCREENSHOTS "/languages");

QString codeOf(const Language& language)
{
    return QString(language.file).mid(3, 2);
}

// All languages of a view side by side.
void saveSheet(const QString& name, const QList<QPixmap>& pictures)
{
    constexpr int columns = 3;
    constexpr int gap = 8;
    QSize cell;
    for (const QPixmap& picture : pictures)
        cell = cell.expandedTo(picture.size());
    cell += QSize(gap, gap);
    const int rows = (pictures.size() + columns - 1) / columns;
    QPixmap sheet(cell.width() * columns, cell.height() * rows);
    sheet.fill(QColor(0x90, 0x90, 0x90));
    QPainter painter(&sheet);
    for (int i = 0; i < pictures.size(); ++i)
        painter.drawPixmap(cell.width() * (i % columns), cell.height() * (i / columns),
                           pictures.at(i));
    painter.end();
    QVERIFY(sheet.save(folder + '/' + name + ".png"));
}

QString fileName(const QString& text)
{
    return text.simplified().toLower().remove(QRegularExpression("[^a-z0-9 ]")).replace(' ', '-');
}

// What no window shows beside the title bar that it has not got, or only with what the user adds.
bool isShownElsewhere(const TsMessage& message)
{
    static const QSet<QString> names{"CPage3: Folder", "CPage3: Total Size: ", "ImagePage: Folder",
                                     "CBurnDialog: Browser"};
    return message.source.startsWith("https:") || message.source.startsWith("CTRL+") ||
           message.context == "Util" || message.source == "Dialog" ||
           names.contains(message.name());
}

} // namespace

void TstTranslatedPages::initTestCase()
{
    setApplicationLook();
    QVERIFY(QDir().mkpath(folder));
}

void TstTranslatedPages::init()
{
    TestCase::init();
    window = std::make_unique<MainWindow>(nullptr);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    UserMouse::moveAway(window.get());
}

void TstTranslatedPages::cleanup()
{
    window.reset();
    TestCase::cleanup();
}

void TstTranslatedPages::visitInEveryLanguage(const TranslatedView& view)
{
    QStringList cut;
    QList<QPixmap> pictures;
    for (const Language& language : languages()) {
        speak(*window, language);
        view.show(*window, [&](QWidget* shown) {
            for (const QString& text : cutTexts(shown))
                cut.append(codeOf(language) + ": " + text);
            pictures.append(shown->grab());
        });
    }
    saveSheet(fileName(view.name), pictures);
    QVERIFY2(cut.isEmpty(), qPrintable('\n' + cut.join('\n')));
}

void TstTranslatedPages::textsFitOnPages_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const TranslatedView& view : pageViews())
        QTest::newRow(view.name) << index++;
}

void TstTranslatedPages::textsFitOnPages()
{
    QFETCH(int, index);
    visitInEveryLanguage(pageViews().at(index));
}

void TstTranslatedPages::textsFitInDialogs_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const TranslatedView& view : dialogViews())
        QTest::addRow("%d %s", index, view.name) << index, ++index;
}

void TstTranslatedPages::textsFitInDialogs()
{
    QFETCH(int, index);
    visitInEveryLanguage(dialogViews().at(index));
}

// Menus take the width of their texts.
void TstTranslatedPages::menusArePhotographed()
{
    QList<QPixmap> pictures;
    QList<QPixmap> submenus;
    for (const Language& language : languages()) {
        speak(*window, language);
        QList<QMenu*> menus = menusOf(*window);
        menus.last()->ensurePolished();
        menus.last()->resize(menus.last()->sizeHint());
        pictures.append(menus.last()->grab());
        menus.first()->resize(menus.first()->sizeHint());
        submenus.append(menus.first()->grab());
        QVERIFY(menus.last()->sizeHint().width() < window->width() / 2);
    }
    saveSheet("menu", pictures);
    saveSheet("language-menu", submenus);
}

void TstTranslatedPages::everyTextIsMeasured()
{
    speak(*window, languages().front());
    QSet<QString> measured;
    const auto measure = [&](QWidget* shown) {
        for (const ShownText& text : shownTexts(shown))
            measured.insert(text.text);
        for (const QMenu* const menu : menusOf(*window)) {
            measured.insert(menu->title());
            for (const QAction* const action : menu->actions())
                measured.insert(action->text());
        }
    };
    for (const TranslatedView& view : pageViews() + dialogViews())
        view.show(*window, measure);
    for (const TsMessage& message : readTsFile("en")) {
        QVERIFY2(isShownElsewhere(message) || measured.contains(message.source.simplified()),
                 qPrintable(message.name()));
    }
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstTranslatedPages)
#include "tst_translatedpages.moc"
