// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagedisk.h"

#include "mbr.h"
#include "testfiles.h"

#include <QFile>
#include <QRegularExpression>
#include <QtEndian>

namespace
{

constexpr quint32 partitionSectors = 2048;

QByteArray little(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

} // namespace

// Below /tmp, since the platform's folder for temporary files may be no place for media.
ImageDisk::ImageDisk()
    : folder(QStringLiteral("/tmp/imagedisk-XXXXXX"))
    , pathBefore(qgetenv("PATH"))
{
    const QByteArray home = QFile::encodeName(folder.path());
    // Some of the real programs lie where only root looks.
    qputenv("PATH", home + "/bin:" + pathBefore + ":/usr/sbin:/sbin");
    writeFile(disk(), partitionedMbr(partitionSectors));
    QFile image(disk());
    image.resize((firstSector + partitionSectors) * 512LL);
    writeFile(partition(), fatSector());
    setFacts(R"({"blockdevices":[{"path":"DISK","type":"disk","size":0,"rm":true,"tran":"usb",
        "vendor":"V","model":"M","serial":"SERIAL","children":[
        {"path":"DISK1","type":"part","mountpoints":)");
    tellSize();
    setMounted({});
    behave("lsblk", "cat '" + home + "/facts' '" + home + "/mounted'; echo '}]}]}'");
    behave("umount", "echo '[null]' >'" + home + "/mounted'");
    behave("mount", "echo \"[\\\"$7\\\"]\" >'" + home + "/mounted'");
    behave("syslinux", ":");
    behave("sync", ":");
    behave("setpriv", "exit 1");
    for (const char* name : {"mbr.bin", "chain.c32", "libcom32.c32", "libutil.c32"})
        writeFile(path(QStringLiteral("installed/") + name), QByteArray(440, name[0]));
}

ImageDisk::~ImageDisk()
{
    qputenv("PATH", pathBefore);
}

void ImageDisk::behave(const QString& program, const QByteArray& body) const
{
    QByteArray record;
    if (program != QLatin1String("lsblk"))
        record = "echo \"${0##*/} $*\" >>'" + QFile::encodeName(path("calls")) + "'\n";
    writeScript(path("bin/" + program), record + body + "\n");
}

void ImageDisk::useReal(const QString& program) const
{
    QFile::remove(path("bin/" + program));
}

void ImageDisk::setMounted(const QStringList& mountPoints) const
{
    const QString list = '"' + mountPoints.join("\",\"") + '"';
    writeFile(path("mounted"), '[' + (mountPoints.isEmpty() ? QByteArray() : list.toUtf8()) + ']');
}

QByteArray ImageDisk::facts() const
{
    return readFile(path("facts"));
}

void ImageDisk::setFacts(const QByteArray& text) const
{
    QByteArray filled = text;
    filled.replace("DISK", disk().toUtf8());
    writeFile(path("facts"), filled);
}

void ImageDisk::tellSize() const
{
    const QRegularExpression size(QStringLiteral("\"size\":\\d+"));
    QString text = QString::fromUtf8(facts());
    text.replace(size, QStringLiteral("\"size\":%1").arg(QFile(disk()).size()));
    writeFile(path("facts"), text.toUtf8());
}

QStringList ImageDisk::calls() const
{
    return QString::fromUtf8(readFile(path("calls"))).split('\n', Qt::SkipEmptyParts);
}

bool ImageDisk::isUntouched() const
{
    return readFile(disk()).left(sectorSize) == partitionedMbr(partitionSectors);
}

QByteArray ImageDisk::partitionedMbr(quint32 sectors)
{
    QByteArray sector(sectorSize, '\0');
    sector.replace(440, 4, "SIGN");
    sector.replace(446, 16,
                   QByteArray::fromHex("00feffff0cfeffff") + little(firstSector) + little(sectors));
    sector.replace(510, 2, QByteArray::fromHex("55aa"));
    return sector;
}

QByteArray ImageDisk::fatSector()
{
    QByteArray sector(sectorSize, '\0');
    sector.replace(0, 3, QByteArray::fromHex("eb5890"));
    sector.replace(11, 6, QByteArray::fromHex("000208200002"));
    sector.replace(510, 2, QByteArray::fromHex("55aa"));
    return sector;
}

BootableDisk::Setup ImageDisk::setup(QStringList* said) const
{
    BootableDisk::Setup setup;
    setup.request.disk = disk();
    setup.request.mountPoint = mountPoint();
    setup.user = 1000;
    setup.group = 1001;
    setup.bootFiles.bootCode = path("installed/mbr.bin");
    setup.bootFiles.libraries =
        QStringList{path("installed/libcom32.c32"), path("installed/libutil.c32")};
    setup.bootFiles.modules = setup.bootFiles.libraries + QStringList{path("installed/chain.c32")};
    setup.say = [said](const QString& line) { said->append(line); };
    return setup;
}
