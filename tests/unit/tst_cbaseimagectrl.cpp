// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cbaseimagectrl.h"
#include "cimagebutton.h"
#include "receiver.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"

#include <QAccessible>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>

#include <memory>

namespace
{

const QSize small(20, 10);
const QPoint corner(100, 100);

// The rectangle of all pixels whose colour is nearer to the given one than to the ground.
QRect boundsOf(const QImage& image, const QColor& colour)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const int distance = qAbs(pixel.red() - colour.red()) +
                                 qAbs(pixel.green() - colour.green()) +
                                 qAbs(pixel.blue() - colour.blue());
            if (distance < 60)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

} // namespace

class TstCBaseImageCtrl : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void showsThePictureOfItsState_data();
    void showsThePictureOfItsState();
    void disabledWithoutDisabledPictureShowsTheNormalOne();
    void stateWithoutPicturePaintsNothing();
    void stripShowsTheFrameOfItsState_data();
    void stripShowsTheFrameOfItsState();
    void separatePicturesAfterAStripForgetTheFrames();
    void pictureSitsWhereTheAlignmentSays_data();
    void pictureSitsWhereTheAlignmentSays();
    void takesTheSizeOfItsPicture_data();
    void takesTheSizeOfItsPicture();
    void keepsItsSizeWithoutAutoSizeUntilResize();
    void missingPictureKeepsTheSize();
    void styleDecidesPlaceAndColourOfTheCaption_data();
    void styleDecidesPlaceAndColourOfTheCaption();
    void tilePaintsADescriptionBelowItsCaption();
    void otherStylesPaintNoDescription();
    void tileTextsAreWhiteWhilePressed();
    void captionKeepsAmpersandsAndLineBreaks();

    void clickEmitsBothSignalsOnce();
    void releaseOutsideEmitsNothing();
    void draggingOffAndBackIsAClick();
    void releaseWithoutPressEmitsNothing();
    void otherMouseButtonsEmitNothing();
    void disabledIgnoresTheMouse();
    void aReceiverMayDeleteTheButton();
    void mouseIsOnlyInWhileItIsOverTheControl();

    void keysClickOnce_data();
    void keysClickOnce();
    void keyHeldDownIsOneClick();
    void otherKeysAreLeftToTheWindow();
    void disabledIgnoresKeys();
    void tabReachesItAndAClickDoesNotFocusIt();
    void focusMarkShowsOnlyForTheKeyboard();

    void screenReadersSeeAButton();
    void screenReadersCanPressIt();
    void captionIsTheAccessibleName();
    void buttonWithoutCaptionKeepsItsAccessibleName();

private:
    QString picture(const QString& name, const QColor& colour, const QSize& size = small);
    QString strip(int frames);
    QColor shown() const;

    QTemporaryDir folder;
    std::unique_ptr<QWidget> window;
    CImageButton* button = nullptr;
};

void TstCBaseImageCtrl::initTestCase()
{
    QVERIFY(folder.isValid());
}

void TstCBaseImageCtrl::init()
{
    TestCase::init();
    window = std::make_unique<QWidget>();
    window->setGeometry(50, 50, 400, 300);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(250, 250, 250));
    window->setPalette(palette);
    button = new CImageButton(window.get());
    button->SetBackGround(picture("n", Qt::red), picture("h", Qt::green), picture("p", Qt::blue),
                          picture("d", Qt::yellow), QString(), QString(), 3);
    button->move(corner);
    window->setFocus(); // else the button gets the focus when the window is activated
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    UserMouse::moveAway(button);
}

void TstCBaseImageCtrl::cleanup()
{
    window.reset();
    TestCase::cleanup();
}

QString TstCBaseImageCtrl::picture(const QString& name, const QColor& colour, const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    // A name is used for one picture only: Qt remembers what it has loaded.
    const QString path = folder.filePath(
        QString("%1-%2-%3x%4").arg(name, colour.name()).arg(size.width()).arg(size.height()));
    return image.save(path, "PNG") ? path : QString();
}

QString TstCBaseImageCtrl::strip(int frames)
{
    const QColor colours[] = {Qt::red, Qt::green, Qt::blue, Qt::yellow};
    QImage image(small.width() * frames, small.height(), QImage::Format_ARGB32);
    QPainter painter(&image);
    for (int i = 0; i < frames; ++i)
        painter.fillRect(i * small.width(), 0, small.width(), small.height(), colours[i]);
    painter.end();
    const QString path = folder.filePath(QString("strip%1").arg(frames));
    return image.save(path, "PNG") ? path : QString();
}

QColor TstCBaseImageCtrl::shown() const
{
    const QImage image = window->grab().toImage();
    return image.pixelColor(button->geometry().center());
}

void TstCBaseImageCtrl::showsThePictureOfItsState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("normal") << "normal" << QColor(Qt::red);
    QTest::newRow("hover") << "hover" << QColor(Qt::green);
    QTest::newRow("pressed") << "pressed" << QColor(Qt::blue);
    QTest::newRow("pressed and dragged off") << "dragged" << QColor(Qt::red);
    QTest::newRow("disabled") << "disabled" << QColor(Qt::yellow);
    QTest::newRow("disabled under the mouse") << "disabled hover" << QColor(Qt::yellow);
}

void TstCBaseImageCtrl::showsThePictureOfItsState()
{
    QFETCH(QString, state);
    QFETCH(QColor, colour);
    const QPoint inside(5, 5);
    button->setEnabled(!state.startsWith("disabled"));
    if (state.endsWith("hover"))
        UserMouse::move(button, inside);
    if (state == "pressed" || state == "dragged")
        UserMouse::press(button, inside);
    if (state == "dragged")
        UserMouse::moveAway(button);
    const QColor seen = shown();
    if (state == "pressed" || state == "dragged")
        UserMouse::release(window.get(), QPoint(0, 0));
    QCOMPARE(seen, colour);
}

void TstCBaseImageCtrl::disabledWithoutDisabledPictureShowsTheNormalOne()
{
    button->SetBackGround(picture("n", Qt::red), picture("h", Qt::green), picture("p", Qt::blue),
                          QString(), QString(), QString(), 3);
    button->setEnabled(false);
    QCOMPARE(shown(), QColor(Qt::red));
}

void TstCBaseImageCtrl::stateWithoutPicturePaintsNothing()
{
    button->SetBackGround(picture("n", Qt::red), folder.filePath("missing"), QString(), QString(),
                          QString(), QString(), 3);
    UserMouse::move(button, QPoint(5, 5));
    QCOMPARE(shown(), QColor(250, 250, 250));
}

void TstCBaseImageCtrl::stripShowsTheFrameOfItsState_data()
{
    QTest::addColumn<int>("frames");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("four, normal") << 4 << "normal" << QColor(Qt::red);
    QTest::newRow("four, hover") << 4 << "hover" << QColor(Qt::green);
    QTest::newRow("four, pressed") << 4 << "pressed" << QColor(Qt::blue);
    QTest::newRow("four, disabled") << 4 << "disabled" << QColor(Qt::yellow);
    QTest::newRow("three, pressed") << 3 << "pressed" << QColor(Qt::blue);
    QTest::newRow("three, disabled: the first frame") << 3 << "disabled" << QColor(Qt::red);
    QTest::newRow("two, hover") << 2 << "hover" << QColor(Qt::green);
    QTest::newRow("two, pressed: the last frame there is") << 2 << "pressed" << QColor(Qt::green);
    QTest::newRow("two, disabled") << 2 << "disabled" << QColor(Qt::red);
    // One frame is no strip: the other pictures are missing, so hovering shows the ground.
    QTest::newRow("one, normal") << 1 << "normal" << QColor(Qt::red);
    QTest::newRow("one, hover") << 1 << "hover" << QColor(250, 250, 250);
}

void TstCBaseImageCtrl::stripShowsTheFrameOfItsState()
{
    QFETCH(int, frames);
    QFETCH(QString, state);
    QFETCH(QColor, colour);
    button->SetBackGround(strip(frames), frames, QString(), 3);
    button->setEnabled(state != "disabled");
    if (state == "hover")
        UserMouse::move(button, QPoint(5, 5));
    if (state == "pressed")
        UserMouse::press(button, QPoint(5, 5));
    const QColor seen = shown();
    if (state == "pressed")
        UserMouse::release(button, QPoint(5, 5));
    QCOMPARE(seen, colour);
    QCOMPARE(button->size(), small);
}

void TstCBaseImageCtrl::separatePicturesAfterAStripForgetTheFrames()
{
    button->SetBackGround(strip(4), 4, QString(), 3);
    button->SetBackGround(picture("n", Qt::red), picture("h", Qt::cyan), QString(), QString(),
                          QString(), QString(), 3);
    UserMouse::move(button, QPoint(5, 5));
    QCOMPARE(shown(), QColor(Qt::cyan));
    QCOMPARE(button->size(), small);
}

void TstCBaseImageCtrl::pictureSitsWhereTheAlignmentSays_data()
{
    QTest::addColumn<int>("align");
    QTest::addColumn<QPoint>("place");
    // A 20 x 10 picture in a 100 x 50 control.
    QTest::newRow("0 left") << 0 << QPoint(0, 20);
    QTest::newRow("1 top") << 1 << QPoint(40, 0);
    QTest::newRow("2 right") << 2 << QPoint(80, 20);
    QTest::newRow("3 bottom") << 3 << QPoint(40, 40);
    QTest::newRow("4 centre") << 4 << QPoint(40, 20);
    QTest::newRow("-1 centre") << -1 << QPoint(40, 20);
    QTest::newRow("unset: centre") << INT_MAX << QPoint(40, 20);
}

void TstCBaseImageCtrl::pictureSitsWhereTheAlignmentSays()
{
    QFETCH(int, align);
    QFETCH(QPoint, place);
    button->resize(100, 50);
    if (align != INT_MAX)
        button->SetAlign(align);
    const QImage image = window->grab(button->geometry()).toImage();
    QCOMPARE(boundsOf(image, Qt::red), QRect(place, small));
}

void TstCBaseImageCtrl::takesTheSizeOfItsPicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(1, 1);
    QTest::newRow("button") << QSize(100, 28);
    QTest::newRow("tile") << QSize(426, 220);
}

void TstCBaseImageCtrl::takesTheSizeOfItsPicture()
{
    QFETCH(QSize, size);
    button->SetBackGround(picture("sized", Qt::red, size), QString(), QString(), QString(),
                          QString(), QString(), 0);
    QCOMPARE(button->size(), size);
}

void TstCBaseImageCtrl::keepsItsSizeWithoutAutoSizeUntilResize()
{
    button->SetAutoSizeByImage(false);
    button->resize(33, 44);
    button->SetBackGround(picture("big", Qt::red, QSize(100, 28)), QString(), QString(), QString(),
                          QString(), QString(), 0);
    QCOMPARE(button->size(), QSize(33, 44));
    button->Resize();
    QCOMPARE(button->size(), QSize(100, 28));
}

void TstCBaseImageCtrl::missingPictureKeepsTheSize()
{
    button->SetBackGround(folder.filePath("missing"), QString(), QString(), QString(), "Text",
                          QString(), 0);
    QCOMPARE(button->size(), small);
    button->SetBackGround(folder.filePath("missing"), 4, QString(), 0);
    QCOMPARE(button->size(), small);
}

void TstCBaseImageCtrl::styleDecidesPlaceAndColourOfTheCaption_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<int>("reach");
    const QColor white(Qt::white);
    const QColor deep(0, 98, 143);
    QTest::newRow("0") << 0 << "normal" << white << 0;
    QTest::newRow("1") << 1 << "normal" << QColor(Qt::black) << 35;
    QTest::newRow("1 hover") << 1 << "hover" << QColor(Qt::black) << 35;
    QTest::newRow("2") << 2 << "normal" << white << 40;
    QTest::newRow("3") << 3 << "normal" << white << 0;
    QTest::newRow("4") << 4 << "normal" << QColor(0, 164, 242) << 0;
    QTest::newRow("4 hover") << 4 << "hover" << QColor(0, 38, 56) << 0;
    QTest::newRow("5") << 5 << "normal" << white << 0;
    QTest::newRow("12") << 12 << "normal" << deep << 0;
    QTest::newRow("13") << 13 << "normal" << deep << 0;
    QTest::newRow("13 disabled") << 13 << "disabled" << QColor(0x8C, 0x98, 0xA0) << 0;
    QTest::newRow("unknown") << 99 << "normal" << QColor(0x33, 0x33, 0x33) << 0;
}

void TstCBaseImageCtrl::styleDecidesPlaceAndColourOfTheCaption()
{
    QFETCH(int, style);
    QFETCH(QString, state);
    QFETCH(QColor, colour);
    QFETCH(int, reach);
    // A ground that is no caption's colour; H reaches from the base line to the cap height.
    const QString ground = picture("ground", QColor(200, 60, 60), QSize(160, 100));
    button->SetBackGround(ground, ground, ground, ground, "HHH", "", style);
    button->setEnabled(state != "disabled");
    if (state == "hover")
        UserMouse::move(button, QPoint(5, 5));
    const QRect bounds = boundsOf(window->grab(button->geometry()).toImage(), colour);
    QVERIFY(!bounds.isEmpty());
    const QPoint centre((160 - 1) / 2, (100 + reach) / 2);
    QVERIFY2(qAbs(bounds.center().x() - centre.x()) <= 2, qPrintable(QTest::toString(bounds)));
    QVERIFY2(qAbs(bounds.center().y() - centre.y()) <= 4, qPrintable(QTest::toString(bounds)));
    QVERIFY(button->rect().contains(button->captionRect()));
}

void TstCBaseImageCtrl::tilePaintsADescriptionBelowItsCaption()
{
    const QString ground = picture("ground", QColor(250, 250, 90), QSize(206, 220));
    button->move(0, 0);
    button->SetBackGround(ground, ground, ground, QString(), "HHH", "HHHHHHHH", 1);
    const QImage image = window->grab(button->geometry()).toImage();
    const QRect caption = boundsOf(image, Qt::black);
    const QRect description = boundsOf(image, Qt::gray);
    QVERIFY2(qAbs(caption.center().y() - (220 + 35) / 2) <= 4,
             qPrintable(QTest::toString(caption)));
    // The caption's soft edges are gray too, so only the lower end is the description's own.
    const int middle = (220 + 90) / 2;
    QVERIFY2(description.bottom() > middle && description.bottom() < middle + 12,
             qPrintable(QTest::toString(description)));
    QVERIFY(description.width() > caption.width());
}

void TstCBaseImageCtrl::otherStylesPaintNoDescription()
{
    const QString ground = picture("ground", QColor(200, 60, 60), QSize(206, 220));
    button->move(0, 0);
    for (const int style : {0, 2, 3, 4, 5, 12, 13}) {
        button->SetBackGround(ground, ground, ground, QString(), "", "HHHHHHHH", style);
        QImage expected(button->size(), QImage::Format_RGB32);
        expected.fill(QColor(200, 60, 60));
        const QImage image = window->grab(button->geometry()).toImage();
        QCOMPARE(image.convertToFormat(QImage::Format_RGB32), expected);
    }
}

void TstCBaseImageCtrl::tileTextsAreWhiteWhilePressed()
{
    const QString ground = picture("ground", QColor(0, 128, 188), QSize(206, 220));
    button->move(0, 0);
    button->SetBackGround(ground, ground, ground, QString(), "HHH", "HHHHHHHH", 1);
    UserMouse::press(button, QPoint(5, 5));
    const QImage image = window->grab(button->geometry()).toImage();
    UserMouse::release(button, QPoint(5, 5));
    const QRect white = boundsOf(image, Qt::white);
    QVERIFY(white.top() < (220 + 35) / 2);
    QVERIFY(white.bottom() > (220 + 90) / 2);
    QVERIFY(boundsOf(image, Qt::black).isEmpty());
}

void TstCBaseImageCtrl::captionKeepsAmpersandsAndLineBreaks()
{
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "A && B", "", 3);
    const int ampersands = button->captionRect().width();
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "A & B", "", 3);
    QVERIFY(button->captionRect().width() < ampersands);
    const int oneLine = button->captionRect().height();
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "A\nB", "", 3);
    QVERIFY(button->captionRect().height() >= 2 * oneLine - 2);
}

void TstCBaseImageCtrl::clickEmitsBothSignalsOnce()
{
    QSignalSpy plain(button, SIGNAL(clicked()));
    QSignalSpy withState(button, SIGNAL(clicked(bool)));
    UserMouse::click(button);
    QCOMPARE(plain.count(), 1);
    QCOMPARE(withState.count(), 1);
    QCOMPARE(withState.first().first().toBool(), false);
}

void TstCBaseImageCtrl::releaseOutsideEmitsNothing()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    UserMouse::press(button, QPoint(5, 5));
    UserMouse::move(button, QPoint(-30, 5));
    UserMouse::release(button, QPoint(-30, 5));
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrl::draggingOffAndBackIsAClick()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    UserMouse::press(button, QPoint(5, 5));
    UserMouse::move(button, QPoint(-30, 5));
    UserMouse::move(button, QPoint(5, 5));
    UserMouse::release(button, QPoint(5, 5));
    QCOMPARE(spy.count(), 1);
}

void TstCBaseImageCtrl::releaseWithoutPressEmitsNothing()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    UserMouse::press(window.get(), QPoint(5, 5));
    UserMouse::release(button, QPoint(5, 5));
    QTest::mouseRelease(button, Qt::LeftButton); // as after a double click that closed a window
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrl::otherMouseButtonsEmitNothing()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    UserMouse::move(button, QPoint(5, 5));
    QTest::mouseClick(button, Qt::RightButton);
    QTest::mouseClick(button, Qt::MiddleButton);
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrl::disabledIgnoresTheMouse()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    button->setEnabled(false);
    UserMouse::click(button);
    button->click();
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrl::aReceiverMayDeleteTheButton()
{
    const QPointer<CImageButton> watched(button);
    Receiver receiver([this] { delete button; });
    connect(button, SIGNAL(clicked()), &receiver, SLOT(call()));
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(watched.isNull());
}

void TstCBaseImageCtrl::mouseIsOnlyInWhileItIsOverTheControl()
{
    QVERIFY(!button->isMouseIn());
    UserMouse::move(button, QPoint(5, 5));
    QVERIFY(button->isMouseIn());
    button->move(0, 0); // away from below the cursor, before any leave event
    QVERIFY(!button->isMouseIn());
}

void TstCBaseImageCtrl::keysClickOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TstCBaseImageCtrl::keysClickOnce()
{
    QFETCH(int, key);
    QSignalSpy plain(button, SIGNAL(clicked()));
    QSignalSpy withState(button, SIGNAL(clicked(bool)));
    QTest::keyClick(button, static_cast<Qt::Key>(key));
    QCOMPARE(plain.count(), 1);
    QCOMPARE(withState.count(), 1);
}

void TstCBaseImageCtrl::keyHeldDownIsOneClick()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    QTest::keyPress(button, Qt::Key_Space);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
        QApplication::sendEvent(button, &repeat);
    }
    QTest::keyRelease(button, Qt::Key_Space);
    QCOMPARE(spy.count(), 1);
}

void TstCBaseImageCtrl::otherKeysAreLeftToTheWindow()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(button, &escape);
    QVERIFY(!escape.isAccepted());
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrl::disabledIgnoresKeys()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    button->setEnabled(false);
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
    QApplication::sendEvent(button, &space);
    QCOMPARE(spy.count(), 0);
}

void TstCBaseImageCtrl::tabReachesItAndAClickDoesNotFocusIt()
{
    UserMouse::click(button);
    QVERIFY(!button->hasFocus());
    QTest::keyClick(window.get(), Qt::Key_Tab);
    QVERIFY(button->hasFocus());
}

void TstCBaseImageCtrl::focusMarkShowsOnlyForTheKeyboard()
{
    button->resize(100, 50);
    const QImage without = window->grab(button->geometry()).toImage();
    button->setFocus(Qt::OtherFocusReason);
    QVERIFY(button->hasFocus());
    QCOMPARE(window->grab(button->geometry()).toImage(), without);
    button->clearFocus();
    button->setFocus(Qt::TabFocusReason);
    const QImage with = window->grab(button->geometry()).toImage();
    QVERIFY(with != without);
    button->clearFocus();
    QCOMPARE(window->grab(button->geometry()).toImage(), without);
}

void TstCBaseImageCtrl::screenReadersSeeAButton()
{
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(button);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Button);
    QVERIFY(!interface->state().disabled);
    button->setEnabled(false);
    QVERIFY(interface->state().disabled);
}

void TstCBaseImageCtrl::screenReadersCanPressIt()
{
    QSignalSpy spy(button, SIGNAL(clicked()));
    QAccessibleActionInterface* actions =
        QAccessible::queryAccessibleInterface(button)->actionInterface();
    QVERIFY(actions);
    const QString press = QAccessibleActionInterface::pressAction();
    QVERIFY(actions->actionNames().contains(press));
    QVERIFY(!actions->keyBindingsForAction(press).isEmpty());
    actions->doAction(press);
    QCOMPARE(spy.count(), 1);
    button->setEnabled(false);
    QVERIFY(!actions->actionNames().contains(press));
    actions->doAction(press);
    QCOMPARE(spy.count(), 1);
}

void TstCBaseImageCtrl::captionIsTheAccessibleName()
{
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "Edit",
                          "\n Add, delete, rename \n content in ISO file", 1);
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(button);
    QCOMPARE(interface->text(QAccessible::Name), QString("Edit"));
    QCOMPARE(interface->text(QAccessible::Description),
             QString("Add, delete, rename content in ISO file"));
}

void TstCBaseImageCtrl::buttonWithoutCaptionKeepsItsAccessibleName()
{
    button->setAccessibleName("Close");
    button->SetBackGround(picture("n", Qt::red), QString(), QString(), QString(), "", "", 0);
    QCOMPARE(button->accessibleName(), QString("Close"));
}

KORVEX_TEST_MAIN(TstCBaseImageCtrl)
#include "tst_cbaseimagectrl.moc"
