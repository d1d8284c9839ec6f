// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "sevenzipprogress.h"

#include "terminaltext.h"

namespace
{

const QLatin1String percentMark("% ");
const QLatin1String entryMark(" - ");

// A piece may begin with the rest of another line: the number is what stands last before its mark.
QString lastWord(const QString& text)
{
    const QString words = text.trimmed();
    return words.mid(words.lastIndexOf(' ') + 1);
}

std::optional<SevenZipProgress> readLine(const QString& text)
{
    const int percentEnd = text.indexOf(percentMark);
    const int entryMarkAt = text.indexOf(entryMark);
    if (percentEnd <= 0 || entryMarkAt <= 0)
        return std::nullopt;
    const QString number = lastWord(text.left(percentEnd));
    if (number.isEmpty())
        return std::nullopt;
    return SevenZipProgress{number.toInt(),
                            withoutControlCharacters(text.mid(entryMarkAt + entryMark.size()))};
}

std::optional<int> readPercent(const QString& text)
{
    const int percentEnd = text.indexOf(percentMark);
    if (percentEnd <= 0)
        return std::nullopt;
    return text.left(percentEnd).trimmed().toInt();
}

std::optional<int> readPercentWord(const QString& text)
{
    const int percentEnd = text.indexOf(percentMark);
    if (percentEnd <= 0)
        return std::nullopt;
    const QString before = text.left(percentEnd);
    return before.mid(before.lastIndexOf(' ')).trimmed().toInt();
}

// What the latest state of the line tells that tells anything.
template<class Reading>
Reading readLatest(const QString& piece, Reading (*read)(const QString&))
{
    const QStringList states = lineStates(piece);
    for (auto state = states.rbegin(); state != states.rend(); ++state) {
        if (const Reading reading = read(*state))
            return reading;
    }
    return std::nullopt;
}

} // namespace

std::optional<SevenZipProgress> readSevenZipProgress(const QString& piece)
{
    return readLatest(piece, readLine);
}

std::optional<int> readSevenZipPercent(const QString& piece)
{
    return readLatest(piece, readPercent);
}

std::optional<int> readSevenZipPercentWord(const QString& piece)
{
    return readLatest(piece, readPercentWord);
}
