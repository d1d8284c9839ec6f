// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imagedialog.h"
#include "opticaldrivelist.h"
#include "pagelifetime.h"
#include "toolrun.h"

#include <memory>

class CImageButton;
class CProgressDialog;
class QComboBox;
class QLabel;
class QLineEdit;

// The device of the drive whose disc is being copied.
extern QString currdev;

// The Copy Disk page: makes an image of the disc in an optical drive, and ejects it. The main
// window creates it; it frees itself after it is closed.
class CPage5 : public ImageDialog
{
    Q_OBJECT

public:
    explicit CPage5(QWidget* parent);
    ~CPage5() override;

    // Re-applies the texts of the buttons.
    void updateUI();

    // The optical entry that was current when the list was last cleared.
    static QString dvdCurrent;

public slots:
    // Fills the list of drives anew, in the background.
    void InitializeDVDComboBox();
    void OnBrowser();
    void OnStart();
    void OnEject();
    // Ends the copy; what has been written stays.
    void StopCreate();
    // One line about the optical drives.
    void onLineOutput(QString line);
    // One line of the table of mounted volumes.
    void onMountPointLineOutput(QString line);
    // One line of the copying tool's output.
    void OnReadLineOutput(QString line);
    void OnReadFinished();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void createSourcePanel();
    void createDestinationPanel();
    void createButtons();
    void retranslate();
    void findMountPoint();

    std::unique_ptr<CProgressDialog> progress;
    PageLifetime lifetime;
    QLabel* makeimage = nullptr;
    QLabel* source = nullptr;
    QLabel* select = nullptr;
    QComboBox* dvdlist = nullptr;
    CImageButton* eject = nullptr;
    QLabel* destination = nullptr;
    QLabel* output = nullptr;
    QComboBox* formatlist = nullptr;
    QLabel* location = nullptr;
    QLineEdit* lineEdit = nullptr;
    CImageButton* browser = nullptr;
    CImageButton* back = nullptr;
    CImageButton* start = nullptr;

    std::unique_ptr<OpticalDriveList> opticalDrives;
    ToolRun refresh;
    ToolRun copy;
    bool starting = false;
    QString imagePath;
    QString mountPoint;
};
