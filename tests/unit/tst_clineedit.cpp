// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "clineedit.h"
#include "foldertest.h"
#include "onscreen.h"
#include "testmain.h"
#include "usermouse.h"

#include <QSignalSpy>
#include <QWindow>

#include <memory>

// Keeps the movements of the mouse from a widget.
class MovementsHidden : public QObject
{
public:
    explicit MovementsHidden(QWidget* widget) { widget->installEventFilter(this); }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::MouseMove;
    }
};

class TstCLineEdit : public FolderTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void squareFollowsThePosition_data();
    void squareFollowsThePosition();
    void focusDecidesBetweenTwoPictures();
    void thirdPictureMakesAButton();
    void screenFollowsTheMouse();
    void noPictureLeavesThePlainEdit();
    void clickOnThePictureIsAnnounced();
    void releaseOutsideThePictureIsNotAnnounced();
    void clickOnTheTextIsNotAnnounced();
    void otherMouseButtonsAreNotAnnounced();
    void keysReachTheEdit();

private:
    QString picture(const QColor& colour) const { return path(colour.name().mid(1)); }
    QColor shown() const;

    std::unique_ptr<QWidget> window;
    CLineEdit* edit = nullptr;
};

void TstCLineEdit::init()
{
    FolderTest::init();
    for (const QColor colour : {Qt::red, Qt::green, Qt::blue}) {
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(colour);
        QVERIFY(image.save(picture(colour), "PNG"));
    }
    window = std::make_unique<QWidget>();
    window->setGeometry(50, 50, 300, 100);
    window->setFocus(); // not on the edit yet
    edit = new CLineEdit(window.get());
    edit->setGeometry(20, 20, 200, 26);
    edit->SetImage(picture(Qt::red), picture(Qt::green), QString(), QPoint(-30, 3));
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), 30'000));
    UserMouse::moveAway(edit);
}

void TstCLineEdit::cleanup()
{
    window.reset();
    FolderTest::cleanup();
}

QColor TstCLineEdit::shown() const
{
    return edit->grab().toImage().pixelColor(edit->getRect().center());
}

void TstCLineEdit::squareFollowsThePosition_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QRect>("square");
    QTest::newRow("from the right edge") << QPoint(-30, 3) << QRect(170, 3, 20, 20);
    QTest::newRow("from the left edge") << QPoint(4, 3) << QRect(4, 3, 20, 20);
    QTest::newRow("from both far edges") << QPoint(-8, -8) << QRect(192, 18, 10, 10);
    QTest::newRow("the whole height") << QPoint(0, 0) << QRect(0, 0, 26, 26);
}

void TstCLineEdit::squareFollowsThePosition()
{
    QFETCH(QPoint, position);
    QFETCH(QRect, square);
    edit->SetImage(picture(Qt::red), QString(), QString(), position);
    QCOMPARE(edit->getRect(), square);
}

void TstCLineEdit::focusDecidesBetweenTwoPictures()
{
    QCOMPARE(shown(), QColor(Qt::red));
    edit->setFocus();
    QCOMPARE(shown(), QColor(Qt::green));
    UserMouse::move(edit, edit->getRect().center()); // the mouse does not matter
    QCOMPARE(shown(), QColor(Qt::green));
    edit->SetImage(picture(Qt::red), QString(), QString(), QPoint(-30, 3));
    QCOMPARE(shown(), QColor(Qt::white));
}

void TstCLineEdit::thirdPictureMakesAButton()
{
    edit->SetImage(picture(Qt::red), picture(Qt::green), picture(Qt::blue), QPoint(-30, 3));
    edit->setFocus(); // the focus does not matter
    QCOMPARE(shown(), QColor(Qt::red));
    UserMouse::move(edit, QPoint(50, 10));
    QCOMPARE(shown(), QColor(Qt::red));
    const QPoint inside = edit->getRect().center();
    UserMouse::move(edit, inside);
    QCOMPARE(shown(), QColor(Qt::green));
    UserMouse::press(edit, inside);
    const QColor held = shown();
    UserMouse::release(edit, inside);
    QCOMPARE(held, QColor(Qt::blue));
}

// What stands on the screen after each event, whoever has made the edit paint itself.
void TstCLineEdit::screenFollowsTheMouse()
{
    edit->SetImage(picture(Qt::red), picture(Qt::green), picture(Qt::blue), QPoint(-30, 3));
    edit->setFocus(); // else the press would bring it
    // Nor does a blinking cursor paint the edit.
    const int flashTime = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);
    const QPoint inside = edit->getRect().center();
    const QPoint beside(50, 10);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(edit, inside), QColor(Qt::red), 30'000);
    {
        // Enters without a movement, as when a window above it goes.
        const MovementsHidden from(edit);
        UserMouse::move(edit, inside);
        QTRY_COMPARE_WITH_TIMEOUT(onScreen(edit, inside), QColor(Qt::green), 30'000);
    }
    UserMouse::moveAway(edit);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(edit, inside), QColor(Qt::red), 30'000);
    UserMouse::move(edit, beside);
    UserMouse::move(edit, inside); // moves
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(edit, inside), QColor(Qt::green), 30'000);
    UserMouse::moveAway(edit); // leaves
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(edit, inside), QColor(Qt::red), 30'000);
    UserMouse::move(edit, inside);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(edit, inside), QColor(Qt::green), 30'000);
    // Without a further movement.
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      edit->mapTo(window.get(), inside));
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(edit, inside), QColor(Qt::blue), 30'000);
    UserMouse::release(edit, inside);
    QTRY_COMPARE_WITH_TIMEOUT(onScreen(edit, inside), QColor(Qt::green), 30'000);
    QApplication::setCursorFlashTime(flashTime);
}

void TstCLineEdit::noPictureLeavesThePlainEdit()
{
    edit->SetImage(QString(), QString(), QString(), QPoint(-30, 3));
    QLineEdit plain(window.get());
    plain.resize(edit->size());
    QCOMPARE(edit->grab().toImage(), plain.grab().toImage());
}

void TstCLineEdit::clickOnThePictureIsAnnounced()
{
    QSignalSpy spy(edit, SIGNAL(OnClicked()));
    UserMouse::press(edit, edit->getRect().center());
    QCOMPARE(spy.count(), 0);
    UserMouse::release(edit, edit->getRect().center());
    QCOMPARE(spy.count(), 1);
}

void TstCLineEdit::releaseOutsideThePictureIsNotAnnounced()
{
    QSignalSpy spy(edit, SIGNAL(OnClicked()));
    UserMouse::press(edit, edit->getRect().center());
    UserMouse::release(edit, QPoint(50, 10));
    QCOMPARE(spy.count(), 0);
}

void TstCLineEdit::clickOnTheTextIsNotAnnounced()
{
    QSignalSpy spy(edit, SIGNAL(OnClicked()));
    UserMouse::press(edit, QPoint(50, 10));
    UserMouse::release(edit, QPoint(50, 10));
    QCOMPARE(spy.count(), 0);
    QVERIFY(edit->hasFocus());
}

void TstCLineEdit::otherMouseButtonsAreNotAnnounced()
{
    QSignalSpy spy(edit, SIGNAL(OnClicked()));
    edit->setContextMenuPolicy(Qt::NoContextMenu);
    UserMouse::move(edit, edit->getRect().center());
    QTest::mouseClick(edit, Qt::RightButton, Qt::NoModifier, edit->getRect().center());
    QCOMPARE(spy.count(), 0);
}

void TstCLineEdit::keysReachTheEdit()
{
    QTest::keyClicks(edit, "a b");
    QCOMPARE(edit->text(), QString("a b"));
}

KORVEX_TEST_MAIN(TstCLineEdit)
#include "tst_clineedit.moc"
