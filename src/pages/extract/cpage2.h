// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imagepage.h"

#include <QDateTime>

#include <memory>

class CImageButton;
class CProgressDialog;
class QLabel;
class QMenu;

// The Extract page: loads an image, shows its folders and entries and copies the ticked entries of
// the current folder into a folder on the computer. The main window creates it.
class CPage2 : public ImagePage
{
    Q_OBJECT

public:
    explicit CPage2(QWidget* parent);
    ~CPage2() override;

    void InitializeUI() override;

    // False shows the busy cursor, true restores the normal one; the Back button follows.
    void SetEnabled(bool enabled);
    QString DateTimeToString(QDateTime time) const;
    void ClearAll();
    void AddOneItem(Item& item);
    // Re-applies the translatable texts.
    void updateUI();

public slots:
    virtual void OnLoadISO();
    virtual void OnBack();
    virtual void OnExtract();
    virtual void OnStopExtract();
    void OnUnzipFinished() override;
    virtual void OnListContextMenuRequest(QPoint position);
    virtual void OnExtractOutput(QString line);
    virtual void OnExtractFinished();
    void OnListViewClicked(QTableWidgetItem* cell);

protected:
    void changeEvent(QEvent* event) override;

private:
    void createButtons();
    void createTexts();
    void connectAll();
    void setLoadAndExtractEnabled(bool enabled);
    QStringList tickedNames() const;
    QString currentFolderPrefix() const;
    void startExtraction(const QStringList& arguments);
    void moveExtractedUp() const;

    CImageButton* loadIso = nullptr;
    CImageButton* back = nullptr;
    CImageButton* extract = nullptr;
    QLabel* title = nullptr;
    QLabel* description = nullptr;
    QMenu* contextMenu = nullptr;
    QAction* extractAction = nullptr;
    std::unique_ptr<CProgressDialog> progress;

    // Of the last extraction: where to, from which folder of the image (with a trailing "/", empty
    // for the root), which of its entries.
    QString outputDir;
    QString folderPrefix;
    QStringList selectedNames;
    int shownPercent = 0;
    ToolRun run;
};
