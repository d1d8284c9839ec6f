// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

#include <atomic>

class QDataStream;
class QDateTime;
class QWidget;

// Folder that GetTempDir() falls back to where the platform names none. It stays empty: such an
// account gets paths at the file system's root.
extern QString goldUser;

// The static helpers that every page leans on. Declared once, defined by concern: folders, log,
// files and texts in util/, commands and disk information in exec/, boot images in iso/, messages
// and pickers in dialogs/. A definition outside util/ needs that folder's library to link.
class Util
{
public:
    Util() = default;

    // ---- exec/: short commands -------------------------------------------------------------

    // Runs the command text "program" args and returns its standard output, Latin-1 up to the
    // first zero byte. The program is quoted here, blanks in args split unless the caller quotes.
    // The caller's events are processed meanwhile, so expect re-entry. A command that cannot start
    // gives an empty text. Any thread that may run an event loop.
    static QString callexternapp(QString program, QString args);
    // The same, with input (as Latin-1, up to its first zero character) fed to standard input.
    static QString callexternappWriteToStdin(QString program, QString args, QString input);

    // Total size of a disk in bytes, 0 when the disk tool names none. Blocks for up to 30 s.
    static qint64 DiskSpaceTotal(QString disk);
    // Mount point of a disk, empty when it has none. Blocks for up to 30 s.
    static QString GetMountPoint(QString disk);

    // ---- util/: log, lists, folders --------------------------------------------------------

    // Appends the local time, a blank and the text to GetTempDir()/log.txt while a file config.dat
    // exists beside the executable; does nothing otherwise or when the log cannot be opened.
    // Any thread.
    static void WriteLog(QString text);
    // WriteLog for every text in order, asking once whether the log is on.
    static void WriteLogLines(const QStringList& texts);
    // Writes each line followed by a line end; false when path cannot be opened for writing.
    static bool WriteMulLinesToFile(QStringList lines, QString path);

    static QString GetCurrentExePath();
    // Makes the executable's folder the current folder.
    static void SetCurrentWorkPath();
    static QString GetCurrentWorkPath();
    // The program's private data folder without a trailing slash, created if missing.
    static QString GetTempDir();

    // ---- dialogs/: pickers (user-interface thread, modal; empty when cancelled) ------------

    static QString GetOpenFileDialog(QWidget* parent, QString filter);
    static QStringList GetOpenFilesDialog(QWidget* parent);
    static QString GetDirDialog(QWidget* parent);
    static QStringList GetDirsDialog(QWidget* parent);
    static QStringList GetDirsAndFilesDialog(QWidget* parent);
    static QString GetSaveDialog(QWidget* parent, QString filter);

    // ---- dialogs/: messages (user-interface thread, modal) ---------------------------------

    static void ShowError(QString text);
    // Success message whose second button opens the folder path.
    static void ShowOpen(QString text, QString path);
    // Question on the given background picture: 1 for OK, 0 otherwise.
    static int ShowChoose(QString picture, QString text);

    // ---- util/: desktop --------------------------------------------------------------------

    // Pushes the wait cursor; every call is paired with one of RestoreCursor().
    static void SetCursorBusy();
    static void RestoreCursor();
    static bool isMacOS();
    // Opens a folder in the desktop's file browser. The widget is not used.
    static void OpenExplorer(QWidget* widget, QString path);

    // ---- util/: files (one copy at a time in the whole process) ----------------------------

    // Bytes copied so far by FileCopy; callers reset it and read it to show progress. Any thread.
    static std::atomic<qint64> copyedsize;

    // Copies one file; what lies at dst is deleted first, missing folders are made, permissions and
    // times are not carried over. False when src cannot be read or dst not be opened; a failed
    // write goes unnoticed.
    static bool FileCopy(QString src, QString dst);
    // Copies the contents of src into dst, which may lie within src, links followed; one that leads
    // back to a folder that holds it becomes an empty folder. A file whose name dst already holds
    // is deleted on both sides and ends the copy with false.
    static bool DirCopy(const QString& src, const QString& dst);
    // Copies the folder src itself into dst.
    static bool DirCopy2(const QString& src, const QString& dst);
    // Deletes a file or an empty folder; silent on failure apart from a debug line.
    static void RemoveFile(QString path);
    // Deletes a folder with everything in it. The second argument is ignored.
    static void RemoveDir(QString path, bool recursive);
    // True for a folder as well.
    static bool IsFileExists(QString path);
    // Bytes of all visible files below a folder, links followed; 0 for a missing folder.
    static qint64 DirSize(QString path);

    // ---- util/: display texts --------------------------------------------------------------

    // Such as "1.50 KB": factor 1024, at most two decimals, units B to GB.
    static QString SizeToString(long long bytes);
    // yyyy-MM-dd hh:mm:ss.
    static QString QT2String(QDateTime time);
    // Collapses runs of blanks (U+0020) to one.
    static QString ReplaceBlank(QString text);
    // The extension with its dot; empty for a name without one or with only a leading dot.
    static QString GetExtension(const QString& name);
    // The desktop's icon and type text for a file name, asked once per extension and run.
    // User-interface thread.
    static QIcon GetExtensionIcon(const QString& name);
    static QString GetExtensionString(const QString& name);

    // ---- iso/: boot image (any thread) -----------------------------------------------------

    // Writes the El Torito boot image of the image at isoPath to outPath, a fresh path. True once
    // the boot catalog is accepted, even when its entry is not bootable or its boot image cannot
    // be read or written: whether there is a boot image is for the caller to look. Messages go to
    // the debug stream and to standard output.
    static bool BootExtract(QString isoPath, QString outPath);
    // The part of BootExtract() for one 32-byte entry of the boot catalog: copies the boot image
    // that the entry names from the stream to outPath. Nothing is written for an entry that is not
    // bootable or whose boot image cannot be read whole.
    static void ProcessEntry(QString& outPath, QDataStream& stream, unsigned char* entry);
    // Reads exactly size bytes at byte offset of the stream's device into buffer. 0 for success,
    // 25 when there is no device or it has no such place, 32 when fewer bytes were read.
    static int Read(QDataStream& stream, int offset, int size, void* buffer);
    // Writes size bytes to the start of the file path, made if missing. A longer file keeps its
    // bytes beyond them. Failures go to the debug stream.
    static void WriteData(QString& path, void* data, int size);
};
