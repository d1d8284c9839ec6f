// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "commdialog.h"

class QLineEdit;

// Asks for a name. The Edit page uses it for new folders and for renaming; exec() returns 1 for OK.
class CInputDialog : public CommDialog
{
    Q_OBJECT

public:
    explicit CInputDialog(QWidget* parent);

    // Presets the trimmed text, selected so that typing replaces it.
    void SetInput(QString text);
    // The trimmed text as it stands.
    QString GetInput() const;

protected:
    void retranslate() override;

private:
    QLineEdit* lineEdit;
};
