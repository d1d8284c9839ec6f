// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imagedialog.h"
#include "opticaldrivelist.h"
#include "pagelifetime.h"

#include <QProcess>
#include <QStringList>

#include <memory>
#include <optional>

class CImageButton;
class CMyComboBox;
class CProgressDialog;
class CRunCommandThread;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;

// The Burn page: writes an image to a disc, or to a USB disk that a computer then starts from. The
// main window creates it; it frees itself after it is closed.
class CBurnDialog : public ImageDialog
{
    Q_OBJECT

public:
    // Returns when both drive lists are filled. Events are processed meanwhile.
    explicit CBurnDialog(QWidget* parent);
    ~CBurnDialog() override;

    // Re-applies the texts of the buttons.
    void updateUI();
    // Whether the disk tool calls the device a removable USB disk and no optical drive. Waits for
    // it for up to 30 s, with the window alive.
    bool CheckDiskIsUSB(QString device);
    // Appends the two arguments of the shell that run the boot tool.
    void getParameterlist(QStringList& list, QString disk, QString mountPoint);
    // The driver letter and name of a burner in one line of a bus scan; empty on this platform,
    // whose burners have no letters. Nothing calls it.
    QString GetDriverName(QString line);
    QString GetCDRNoToDriver(QString name, QString busId);

    // The optical entry that was current when the complete list was last cleared.
    static QString dvdCurrent;

public slots:
    void onBrowser();
    void onBack();
    // Writes the USB disk, and returns when that is done, or starts to burn the disc.
    void onBurn();
    void OnRadioSelected();
    void OnMBRSelect();
    void OnVolumeLabTextChange(QString text);
    // The user opens one of the two lists of drives, which is filled anew first.
    void OnRefresh();
    // Fills both lists of drives anew (0), the optical one (1) or that of USB disks (2). Returns
    // when they are complete.
    void InitializeUSBAndDVDComboBox(int mode = 0);
    // One line of the list of disks.
    void onUSBLineOutput(QString line);
    // One line about the optical drives.
    void onLineOutput(QString line);
    // One piece of the archiver's output while it copies onto the USB disk.
    void onUSBBurnOutput(QString line);
    // One line of the burning tool's output.
    void onDVDBurnOutput(QString line);
    void onDVDBurnFinished();
    void onerror(QProcess::ProcessError error);

protected:
    void changeEvent(QEvent* event) override;
    // The titles of the two targets choose them as their marks do.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void createImageChoice();
    void createDiscPanel();
    void createUsbPanel();
    void createUsbOptions();
    void createButtons();
    void connectAll();
    void retranslate();

    void refreshUsbDisks();
    void refreshOpticalDrives();
    void listWaitingDisks();
    bool isLate(const CRunCommandThread* refresh) const;

    void burnDisc(const QString& isoPath);
    // largeImage is the mount point of an image whose install.wim has to be split.
    void writeUsb(const QString& isoPath, const std::optional<QString>& largeImage);
    bool mayWrite(const QString& disk, qint64 diskTotal, qint64 imageSize);
    void formatDisk(const QString& disk, qint64 diskTotal);
    QString makeBootable(const QString& disk);
    void copyImage(const QString& isoPath, const QString& mountPoint, bool withoutInstallWim);
    void splitInstallWim(const QString& imageMountPoint, const QString& mountPoint);
    void showNotice(const QString& picture, const QString& text);

    std::unique_ptr<CProgressDialog> progress;
    PageLifetime lifetime;
    QLabel* isopath = nullptr;
    QLineEdit* isofile = nullptr;
    CImageButton* browser = nullptr;
    QRadioButton* rdvd = nullptr;
    QLabel* bootDVD = nullptr;
    QLabel* selectDVD = nullptr;
    CMyComboBox* dvdlist = nullptr;
    QRadioButton* rusb = nullptr;
    QLabel* bootUSB = nullptr;
    QLabel* selectUSB = nullptr;
    CMyComboBox* usblist = nullptr;
    QLabel* partitionstyle = nullptr;
    QComboBox* ptlist = nullptr;
    QLabel* filesystem = nullptr;
    QComboBox* sysfilelist = nullptr;
    QLabel* volumelabel = nullptr;
    QLineEdit* volumelab = nullptr;
    CImageButton* back = nullptr;
    CImageButton* burn = nullptr;

    std::unique_ptr<OpticalDriveList> opticalDrives;
    // The refreshes that the lists are filled by; lines of earlier ones are late.
    const CRunCommandThread* usbRefresh = nullptr;
    const CRunCommandThread* opticalRefresh = nullptr;
    // External disks that have not been looked at yet.
    QStringList waitingDisks;
    bool listingDisks = false;
    bool listingDiscs = false;
    bool burning = false;
    int copiedPercent = 0;
};
