// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <vector>

// Several runs of the same thing, in milliseconds or any other unit. Printed as a line of a table.
class Samples
{
public:
    void add(double value) { values.push_back(value); }
    // 0 without values.
    double median() const;
    double smallest() const;
    double largest() const;

private:
    std::vector<double> values;
};

// Wall time of a function in milliseconds.
double milliseconds(const std::function<void()>& function);
// Processor time that this process has used so far in all its threads, in milliseconds.
double processorMilliseconds();
// Share of this machine's processors, 0 to 1, that its host has given to others while the function
// ran. 0 where the machine does not tell, as on real hardware.
double shareTakenByOthers(const std::function<void()>& function);

// Prints a title, an underlined one for a new table.
void printTitle(const QString& title);
// Prints a line: median, range, and the ratio to the median of the reference if there is one.
void printSamples(const QString& name, const Samples& samples, const QString& unit,
                  const Samples* reference = nullptr);
// Ends the program: a measurement that cannot be made is no result.
[[noreturn]] void giveUp(const QString& reason);
