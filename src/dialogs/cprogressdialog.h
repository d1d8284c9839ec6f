// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "commdialog.h"

class QProgressBar;

// Progress of a running tool, with a Stop button. A page owns one, shows it with show() while its
// tool runs, feeds it from the tool's output and closes it at the end. It blocks all other windows
// without blocking the code that shows it.
class CProgressDialog : public CommDialog
{
    Q_OBJECT

public:
    explicit CProgressDialog(QWidget* parent);

    void SetRange(int min, int max);
    // Sets the bar and its text, the percentage with two decimals unless they are zero.
    void SetValue(int value);
    // Busy animation instead of progress.
    void SetUnfinished();
    // For work that cannot be stopped any more: disables Stop, and Escape with it.
    void DisableCancel();
    bool IsComplete() const;

public slots:
    // Hides the dialog and emits SigCancel(); whoever listens stops the tool.
    void OnBtnCancel() override;

signals:
    void SigCancel();

protected:
    void retranslate() override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void stopIfAllowed();

    QProgressBar* progressBar;
};
