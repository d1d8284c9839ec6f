// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "usbburntest.h"

#include "bootmanager.h"
#include "imagemaker.h"
#include "testfiles.h"

#include <QProcess>

const QByteArray UsbBurnTest::managerText = "The boot manager of the stick runs";

void UsbBurnTest::initTestCase()
{
    STEP(GuestTest::initTestCase());
    const QString content = folder.filePath("content");
    for (int number = 0; number < 60; ++number)
        writeFile(QString("%1/folder %2/file-%3.txt").arg(content).arg(number % 10).arg(number),
                  QByteArray::number(number).repeated(number));
    writeFile(content + QString::fromUtf8("/Gr\u00fc\u00dfe.txt"), "hello\n");
    writeFile(content + "/bootmgr", bootManager(managerText));
    writeRandomFile(content + "/live/system.squashfs", 3 * megabyte, 1);
    // The machine keeps what it has read, so what is there stays.
    const QString image = machine.imageFolder() + "/linux.iso";
    if (!QFile::exists(image))
        makeImage(content, image, {"-J", "-V", "LINUX LIVE"});
    extractImage(image, folder.filePath("extracted"));
    linuxContent = hashesBelow(folder.filePath("extracted"));
}

void UsbBurnTest::prepareBurn(const QString& image, const QString& node, const QString& label,
                              bool fat)
{
    USE(program.click("burn"));
    USE(program.click("CBurnDialog/rusb"));
    USE(program.waitForEntries("usblist", {node}));
    USE(program.enter("isofile", image));
    USE(program.enter("volumelab", label));
    if (fat)
        USE(program.chooseNext("sysfilelist"));
    USE(program.click("CBurnDialog/burn"));
}

void UsbBurnTest::confirm()
{
    USE(program.waitForText("all data in it will be deleted!"));
    USE(program.click("btnok"));
}

void UsbBurnTest::finish()
{
    USE(program.waitForText("Burning Successfully...", burnSeconds));
    USE(program.click("CommDialog/btnok"));
    STEP(leave());
}

void UsbBurnTest::leave()
{
    USE(program.click("CBurnDialog/back"));
    USE(program.waitForWidget("burn"));
}

QMap<QString, QByteArray> UsbBurnTest::contentOf(const QString& stick)
{
    const QTemporaryDir content;
    copyFrom(stick, "/", content.path());
    return hashesBelow(content.path());
}

// The one partition begins at the first megabyte.
void UsbBurnTest::copyFrom(const QString& stick, const QString& source, const QString& target)
{
    runHere(
        QString("MTOOLS_SKIP_CHECK=1 mcopy -s -i '%1@@1M' '::%2' '%3'").arg(stick, source, target));
}

void runHere(const QString& script)
{
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    shell.setProcessEnvironment(environment);
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start("bash", {"-e", "-o", "pipefail", "-c", script});
    const bool ended = shell.waitForFinished(300000);
    QVERIFY2(ended && shell.exitCode() == 0, qPrintable(script + '\n' + shell.readAll()));
}
