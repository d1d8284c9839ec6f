// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A FAT file system in a file, made and filled by other programs than ours, for the tests of what
// reads and changes it. Every operation stops the test run when its program fails.
class FatImage
{
public:
    FatImage(int fatBits, int sectorsPerCluster, int megabytes);

    QString path() const { return folder.filePath("image"); }
    QByteArray content() const;
    QByteArray sector(qint64 number) const;

    // A file of the root folder: put there, taken out, deleted.
    void put(const QString& name, const QByteArray& bytes) const;
    QByteArray file(const QString& name) const;
    void remove(const QStringList& names) const;

    // Leaves that many clusters free, no two of which lie together; what is between them is below
    // the folder "gaps".
    void scatterFreeSpace(int freeClusters) const;

    // Has the boot loader's own installer install it.
    void installLoader() const;

private:
    qint64 freeBytes() const;

    QTemporaryDir folder;
    int clusterSize;
};

// Runs a program and returns what it prints; stops the test run when it fails.
QByteArray runOrStop(const QString& program, const QStringList& arguments);

// The boot loader's file and boot sector as they are distributed on systems that have no package of
// them: taken from a FAT16 file system that its installer has written.
struct LoaderSample
{
    LoaderSample();
    QByteArray file;
    QByteArray bootSector;
    // The module that it loads first.
    QByteArray module;
};
