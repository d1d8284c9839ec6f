// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "prompttexts.h"

#include <algorithm>
#include <iterator>

namespace
{

struct Row
{
    const char* code;
    const char* title;
    const char* why;
    const char* field;
    const char* ok;
    const char* cancel;
};

const Row rows[] = {
#include "prompttexts_rows.inc"
};

} // namespace

PromptTexts PromptTexts::of(const QString& code)
{
    const Row* row = std::find_if(std::begin(rows), std::end(rows),
                                  [&code](const Row& candidate) { return code == candidate.code; });
    if (row == std::end(rows))
        row = std::begin(rows);
    return {QString::fromUtf8(row->title), QString::fromUtf8(row->why),
            QString::fromUtf8(row->field), QString::fromUtf8(row->ok),
            QString::fromUtf8(row->cancel)};
}

QStringList PromptTexts::codes()
{
    QStringList all;
    for (const Row& row : rows)
        all.append(row.code);
    return all;
}
