// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QGenericPlugin>
#include <QLabel>
#include <QTextStream>
#include <QTimer>

// Acts as the user in the shipped program as a process of its own, which loads it when the
// environment says so: tells on standard output what a message says and presses its OK button, or
// tells that the main window is there and ends the program with 3.
class DialogAnswerer : public QObject
{
    Q_OBJECT

public:
    DialogAnswerer()
    {
        connect(&timer, SIGNAL(timeout()), this, SLOT(look()));
        timer.start(5);
    }

private slots:
    void look()
    {
        QWidget* const message = QApplication::activeModalWidget();
        if (message && message->isVisible()) {
            QTextStream(stdout) << message->findChild<QLabel*>("label")->text() << '\n';
            QMetaObject::invokeMethod(message->findChild<QWidget*>("btnok"), "click");
        } else if (hasMainWindow()) {
            QTextStream(stdout) << "MainWindow\n";
            QCoreApplication::exit(3);
        }
    }

private:
    static bool hasMainWindow()
    {
        for (const QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == "MainWindow" && window->isVisible())
                return true;
        }
        return false;
    }

    QTimer timer;
};

class DialogAnswererPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "dialoganswerer.json")

public:
    QObject* create(const QString&, const QString&) override { return new DialogAnswerer; }
};

#include "dialoganswerer.moc"
