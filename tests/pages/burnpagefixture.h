// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cburndialog.h"
#include "pagefixture.h"

#include <QComboBox>
#include <QLineEdit>

#include <memory>

// What the page takes for the main window, which tells it that a drive has come or gone.
class DriveNotifier : public QWidget
{
    Q_OBJECT

signals:
    void sigdrivechange();
};

// The Burn page as the main window lays it out. The test's DriveScenario is made before it, as the
// page looks for drives at once; what is changed in it later shows after the next refresh.
class BurnPageFixture : public PageFixture
{
public:
    BurnPageFixture();

    // Clicks the mark of the USB or of the disc target, which looks for drives again.
    void chooseUsb() const;
    void chooseDisc() const;
    // Types the path of the image in place of what is there.
    void setImage(const QString& imagePath) const;
    // A drive has come or gone, as far as the page is told.
    void notifyDriveChange() const;
    // The texts of a list's entries.
    static QStringList textsOf(const QComboBox* list);
    // Whether a dialog is painted with this picture, whatever lies on it.
    static bool hasPicture(QWidget* dialog, const QString& picture);

    QLineEdit* line(const QString& name) const;
    QComboBox* list(const QString& name) const;

    QPointer<CBurnDialog> page;

private:
    explicit BurnPageFixture(std::unique_ptr<DriveNotifier> notifier);

    std::unique_ptr<DriveNotifier> mainWindow;
};
