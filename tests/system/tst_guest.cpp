// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "guest.h"
#include "guesttests.h"
#include "testmain.h"

namespace
{

// Which functions of a class are wanted: those named "class::function" among the arguments, all of
// them for "class", and for no name at all. Options are for every class. Empty for none.
QStringList argumentsFor(const QString& testClass, const QStringList& arguments)
{
    QStringList chosen = arguments.mid(0, 1);
    bool isNamed = true;
    bool isWanted = false;
    for (const QString& argument : arguments.mid(1)) {
        if (argument.startsWith('-')) {
            chosen.append(argument);
            continue;
        }
        isNamed = false;
        isWanted = isWanted || argument == testClass || argument.startsWith(testClass + "::");
        if (argument.startsWith(testClass + "::"))
            chosen.append(argument.mid(testClass.size() + 2));
    }
    return isNamed || isWanted ? chosen : QStringList();
}

} // namespace

// All that is tested in the virtual machine, in one that is booted once:
//
//     tst_guest                                   everything
//     tst_guest TstDiscs TstBurnUsb::listHoldsTheSticksAlone
int main(int argc, char* argv[])
{
    const EndOfTests end;
    const QTemporaryDir dataFolder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(dataFolder.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dataFolder.path()));
    const QApplication app(argc, argv);
    const Guest guest;
    int failures = 0;
    int run = 0;
    for (const auto& make :
         {makeBurnUsbTest, makeBurnTroubleTest, makeDiscsTest, makeVirtualMachineTest}) {
        const std::unique_ptr<QObject> test = make();
        const QStringList arguments =
            argumentsFor(test->metaObject()->className(), QCoreApplication::arguments());
        if (arguments.isEmpty())
            continue;
        failures += QTest::qExec(test.get(), arguments);
        ++run;
    }
    EndOfTests::reach();
    return run > 0 ? failures : 1;
}
