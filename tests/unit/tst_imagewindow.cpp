// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cbasemainwindow.h"
#include "foldertest.h"
#include "imagedialog.h"
#include "testmain.h"

#include <QSignalSpy>

#include <functional>
#include <memory>

// Counts how often a widget paints itself, from the moment on at which it has nothing left to
// paint.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget)
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        widget->installEventFilter(this);
    }

    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

// Both window bases get their behaviour from the template, so both run every test.
class TstImageWindow : public FolderTest
{
    Q_OBJECT

private slots:
    void init();
    void looksLikeNoSystemWindow_data() { windows(); }
    void looksLikeNoSystemWindow();
    void dialogIsModalUnlessToldOtherwise();
    void backgroundFixesTheSizeAndIsPainted_data() { windows(); }
    void backgroundFixesTheSizeAndIsPainted();
    void missingPictureKeepsSizeAndPicture_data() { windows(); }
    void missingPictureKeepsSizeAndPicture();
    void nothingIsPaintedWithoutPicture_data() { windows(); }
    void nothingIsPaintedWithoutPicture();
    void coloursShowWhereThePictureIsTransparent_data() { windows(); }
    void coloursShowWhereThePictureIsTransparent();

    void draggingMovesAMoveableWindow_data() { windows(); }
    void draggingMovesAMoveableWindow();
    void draggingLeavesAnImmovableWindow_data() { windows(); }
    void draggingLeavesAnImmovableWindow();
    void immovableWindowLeavesTheMouseToTheOneBelow();
    void movingWithoutPressDoesNothing_data() { windows(); }
    void movingWithoutPressDoesNothing();
    void shortDragsAreOnlyIgnoredNearTheScreensOrigin_data() { windows(); }
    void shortDragsAreOnlyIgnoredNearTheScreensOrigin();

    void showingAndHidingAnnounceTheVisibility_data() { windows(); }
    void showingAndHidingAnnounceTheVisibility();
    void activationAnnouncesTheVisibility_data() { windows(); }
    void activationAnnouncesTheVisibility();
    void showingPaintsTheWindow_data() { windows(); }
    void showingPaintsTheWindow();
    void minimisesOnRequest_data() { windows(); }
    void minimisesOnRequest();

private:
    static void windows();
    // What the two classes offer in common, as their Qt bases do not know it.
    struct Window
    {
        std::unique_ptr<QWidget> widget;
        std::function<void(const QString&)> setBackGround;
        std::function<void(bool)> setMoveable;
        std::function<void(const QColor&)> setColour;
        std::function<void(const QColor&)> setTitleColour;
    };
    template<class Class>
    static Window make();
    static Window create();
    static void mouse(QWidget* widget, QEvent::Type type, const QPointF& screen,
                      Qt::MouseButtons held);

    QString red;
    QString clear;
};

void TstImageWindow::init()
{
    FolderTest::init();
    QImage image(120, 80, QImage::Format_ARGB32);
    image.fill(Qt::red);
    red = path("red");
    QVERIFY(image.save(red, "PNG"));
    image.fill(Qt::transparent);
    clear = path("clear");
    QVERIFY(image.save(clear, "PNG"));
}

void TstImageWindow::windows()
{
    QTest::addColumn<bool>("dialog");
    QTest::newRow("ImageDialog") << true;
    QTest::newRow("CBaseMainWindow") << false;
}

template<class Class>
TstImageWindow::Window TstImageWindow::make()
{
    auto widget = std::make_unique<Class>();
    Class* window = widget.get();
    return {std::move(widget), [window](const QString& path) { window->SetBackGround(path); },
            [window](bool on) { window->SetMoveable(on); },
            [window](const QColor& colour) { window->SetBackGroundColor(colour); },
            [window](const QColor& colour) { window->SetTitleBackGround(colour); }};
}

TstImageWindow::Window TstImageWindow::create()
{
    const QVariant dialog = *static_cast<bool*>(QTest::qData("dialog", qMetaTypeId<bool>()));
    return dialog.toBool() ? make<ImageDialog>() : make<CBaseMainWindow>();
}

void TstImageWindow::mouse(QWidget* widget, QEvent::Type type, const QPointF& screen,
                           Qt::MouseButtons held)
{
    const QPointF local = screen - QPointF(widget->pos());
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, local, local, screen, button, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void TstImageWindow::looksLikeNoSystemWindow()
{
    const Window window = create();
    QVERIFY(!window.widget->parent());
    QCOMPARE(window.widget->windowTitle(), QString("Korvex ISO Editor"));
    QVERIFY(window.widget->windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(window.widget->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!window.widget->autoFillBackground());
}

void TstImageWindow::dialogIsModalUnlessToldOtherwise()
{
    QVERIFY(ImageDialog().isModal());
    QVERIFY(ImageDialog(true).isModal());
    QVERIFY(!ImageDialog(false).isModal());
}

void TstImageWindow::backgroundFixesTheSizeAndIsPainted()
{
    const Window window = create();
    window.setBackGround(red);
    window.widget->resize(300, 300);
    QCOMPARE(window.widget->size(), QSize(120, 80));
    const QImage image = window.widget->grab().toImage();
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(119, 79), QColor(Qt::red));
}

void TstImageWindow::missingPictureKeepsSizeAndPicture()
{
    const Window window = create();
    window.setBackGround(red);
    window.setBackGround(":/nwu/no such picture");
    QCOMPARE(window.widget->size(), QSize(120, 80));
    QCOMPARE(window.widget->grab().toImage().pixelColor(60, 40), QColor(Qt::red));
    QVERIFY(debugLines().contains("Can not load the image file :/nwu/no such picture"));
}

void TstImageWindow::nothingIsPaintedWithoutPicture()
{
    const Window window = create();
    window.widget->resize(50, 50);
    QImage image(50, 50, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    window.widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(image.pixelColor(25, 25).alpha(), 0);
}

void TstImageWindow::coloursShowWhereThePictureIsTransparent()
{
    const Window window = create();
    window.setBackGround(clear);
    window.setColour(Qt::green);
    window.setTitleColour(Qt::blue);
    const QImage colours = window.widget->grab().toImage();
    QCOMPARE(colours.pixelColor(60, 5), QColor(Qt::blue));
    QCOMPARE(colours.pixelColor(60, 70), QColor(Qt::green));
    window.setBackGround(red);
    QCOMPARE(window.widget->grab().toImage().pixelColor(60, 70), QColor(Qt::red));
}

void TstImageWindow::draggingMovesAMoveableWindow()
{
    const Window window = create();
    QSignalSpy moved(window.widget.get(), SIGNAL(sigmove()));
    window.setMoveable(true);
    window.widget->move(100, 100);
    mouse(window.widget.get(), QEvent::MouseButtonPress, {110.4, 110.4}, Qt::LeftButton);
    mouse(window.widget.get(), QEvent::MouseMove, {111, 112}, Qt::LeftButton);
    QCOMPARE(window.widget->pos(), QPoint(101, 102));
    mouse(window.widget.get(), QEvent::MouseMove, {60.5, 70.6}, Qt::LeftButton);
    QCOMPARE(window.widget->pos(), QPoint(51, 61));
    QCOMPARE(moved.count(), 2);
    mouse(window.widget.get(), QEvent::MouseButtonRelease, {61, 71}, Qt::NoButton);
    mouse(window.widget.get(), QEvent::MouseMove, {300, 300}, Qt::LeftButton);
    QCOMPARE(window.widget->pos(), QPoint(51, 61));
}

void TstImageWindow::draggingLeavesAnImmovableWindow()
{
    const Window window = create();
    window.widget->move(100, 100);
    mouse(window.widget.get(), QEvent::MouseButtonPress, {110, 110}, Qt::LeftButton);
    mouse(window.widget.get(), QEvent::MouseMove, {200, 200}, Qt::LeftButton);
    QCOMPARE(window.widget->pos(), QPoint(100, 100));
    window.setMoveable(true); // in the middle of a drag
    mouse(window.widget.get(), QEvent::MouseMove, {201, 201}, Qt::LeftButton);
    QCOMPARE(window.widget->pos(), QPoint(191, 191));
}

void TstImageWindow::immovableWindowLeavesTheMouseToTheOneBelow()
{
    CBaseMainWindow window;
    window.SetMoveable(true);
    window.move(100, 100);
    auto* page = new ImageDialog;
    page->setParent(&window);
    page->setGeometry(10, 10, 50, 50);
    const QPointF start(120, 120);
    QMouseEvent press(QEvent::MouseButtonPress, {10, 10}, start, start, Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(page, &press);
    const QPointF end(150, 160);
    QMouseEvent move(QEvent::MouseMove, {40, 50}, end, end, Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(page, &move);
    QCOMPARE(page->pos(), QPoint(10, 10));
    QCOMPARE(window.pos(), QPoint(130, 140));
}

void TstImageWindow::movingWithoutPressDoesNothing()
{
    const Window window = create();
    window.setMoveable(true);
    window.widget->move(100, 100);
    mouse(window.widget.get(), QEvent::MouseMove, {150, 150}, Qt::LeftButton);
    QCOMPARE(window.widget->pos(), QPoint(100, 100));
    mouse(window.widget.get(), QEvent::MouseButtonPress, {110, 110}, Qt::LeftButton);
    mouse(window.widget.get(), QEvent::MouseMove, {150, 150}, Qt::NoButton);
    QCOMPARE(window.widget->pos(), QPoint(100, 100));
}

void TstImageWindow::shortDragsAreOnlyIgnoredNearTheScreensOrigin()
{
    const Window window = create();
    window.setMoveable(true);
    window.widget->move(100, 100);
    mouse(window.widget.get(), QEvent::MouseButtonPress, {110, 110}, Qt::LeftButton);
    mouse(window.widget.get(), QEvent::MouseMove, {111, 110}, Qt::LeftButton);
    QCOMPARE(window.widget->pos(), QPoint(101, 100));
    const int distance = QApplication::startDragDistance();
    mouse(window.widget.get(), QEvent::MouseMove, {10.0 + distance, 10}, Qt::LeftButton);
    QCOMPARE(window.widget->pos(), QPoint(101, 100));
    mouse(window.widget.get(), QEvent::MouseMove, {11.0 + distance, 10}, Qt::LeftButton);
    QCOMPARE(window.widget->pos(), QPoint(distance + 1, 0));
}

void TstImageWindow::showingAndHidingAnnounceTheVisibility()
{
    const Window window = create();
    QSignalSpy spy(window.widget.get(), SIGNAL(sigvisable(bool)));
    window.widget->show();
    QVERIFY(spy.count() >= 1);
    QCOMPARE(spy.first().first().toBool(), true);
    QVERIFY(QTest::qWaitForWindowActive(window.widget.get(), 30'000));
    spy.clear();
    window.widget->hide();
    QCOMPARE(spy.first().first().toBool(), false);
}

void TstImageWindow::activationAnnouncesTheVisibility()
{
    const Window window = create();
    window.widget->show();
    QVERIFY(QTest::qWaitForWindowActive(window.widget.get(), 30'000));
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other, 30'000));
    QSignalSpy spy(window.widget.get(), SIGNAL(sigvisable(bool)));
    window.widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.widget.get(), 30'000));
    QVERIFY(spy.count() >= 1);
    QCOMPARE(spy.last().first().toBool(), true);
    // Becoming inactive is no news.
    spy.clear();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other, 30'000));
    QCOMPARE(spy.count(), 0);
}

void TstImageWindow::showingPaintsTheWindow()
{
    const Window window = create();
    window.setBackGround(red);
    window.widget->show();
    QVERIFY(QTest::qWaitForWindowActive(window.widget.get(), 30'000));
    PaintCounter counter(window.widget.get());
    // As the window system tells when a minimised window comes back.
    QShowEvent shown;
    QApplication::sendEvent(window.widget.get(), &shown);
    QTRY_VERIFY_WITH_TIMEOUT(counter.paints > 0, 30'000);
}

void TstImageWindow::minimisesOnRequest()
{
    const Window window = create();
    window.widget->show();
    QVERIFY(QTest::qWaitForWindowActive(window.widget.get(), 30'000));
    QVERIFY(QMetaObject::invokeMethod(window.widget.get(), "slot_minWindow"));
    QVERIFY(window.widget->isMinimized());
}

KORVEX_TEST_MAIN(TstImageWindow)
#include "tst_imagewindow.moc"
