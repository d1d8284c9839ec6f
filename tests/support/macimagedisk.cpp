// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "macimagedisk.h"

#include "imagedisk.h"
#include "testfiles.h"

#include <QFile>

namespace
{

constexpr int bytesPerSector = 512;

// What diskutil prints, HOME, SIZE and, for the partition, its mount point filled in.
const char* const diskFacts = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>
<key>BusProtocol</key><string>USB</string>
<key>DeviceBlockSize</key><integer>512</integer>
<key>DeviceIdentifier</key><string>disk</string>
<key>DeviceNode</key><string>HOME/disk</string>
<key>DeviceTreePath</key><string>IODeviceTree:/PORT1</string>
<key>Internal</key><false/>
<key>MediaName</key><string>Stick</string>
<key>MountPoint</key><string></string>
<key>RemovableMedia</key><true/>
<key>TotalSize</key><integer>SIZE</integer>
<key>VirtualOrPhysical</key><string>Physical</string>
<key>WholeDisk</key><true/>
<key>WritableMedia</key><true/>
</dict></plist>
)";
const char* const partitionFacts = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
<key>BusProtocol</key><string>USB</string>
<key>DeviceNode</key><string>HOME/disks1</string>
<key>WholeDisk</key><false/>
)";

const char* const diskutilScript = R"(
home='HOME'
image="$home/disk@@1048576"
[ "$1" = info ] || echo "diskutil $*" >>"$home/calls"
[ ! -e "$home/before-diskutil-$1" ] || . "$home/before-diskutil-$1"
case "$1" in
info)
    case "$3" in
    *s1)
        cat "$home/facts1"
        [ ! -e "$home/mounted" ] ||
            echo "<key>MountPoint</key><string>$(cat "$home/mounted")</string>"
        echo '</dict></plist>' ;;
    *) cat "$home/facts" ;;
    esac ;;
mount)
    [ -d "$3" ] || { echo "no folder $3" >&2; exit 1; }
    mcopy -s -n -i "$image" '::/*' "$3" 2>/dev/null || true
    rm -rf "$3/gaps"
    echo "$3" >"$home/mounted" ;;
unmountDisk)
    [ -e "$home/mounted" ] || exit 0
    place=$(cat "$home/mounted")
    for entry in "$place"/*; do
        [ ! -e "$entry" ] || mcopy -s -o -i "$image" "$entry" :: || exit 1
    done
    rm -rf "$place" "$home/mounted" ;;
esac
)";

} // namespace

MacImageDisk::MacImageDisk(const FatImage& fileSystem)
    : folder(QStringLiteral("/tmp/macimagedisk-XXXXXX"))
    , pathBefore(qgetenv("PATH"))
{
    const QByteArray home = QFile::encodeName(folder.path());
    qputenv("PATH", home + "/bin:" + pathBefore);
    const QByteArray content = fileSystem.content();
    const int start = int(ImageDisk::firstSector) * bytesPerSector;
    atFirst = ImageDisk::partitionedMbr(quint32(content.size() / bytesPerSector))
                  .leftJustified(start, '\0') +
              content;
    writeFile(disk(), atFirst);
    const QByteArray size = QByteArray::number(atFirst.size());
    writeFile(path("facts"), QByteArray(diskFacts).replace("HOME", home).replace("SIZE", size));
    writeFile(path("facts1"), QByteArray(partitionFacts).replace("HOME", home));
    writeScript(path("bin/diskutil"), QByteArray(diskutilScript).replace("HOME", home));
    writeScript(path("bin/sync"),
                "home='" + home +
                    "'\necho sync \"$@\" >>\"$home/calls\"\n"
                    "[ ! -e \"$home/before-sync\" ] || . \"$home/before-sync\"\n");
    static const LoaderSample loader;
    writeFile(path("syslinux/ldlinux.sys"), loader.file);
    writeFile(path("syslinux/ldlinux.bss"), loader.bootSector);
    const BootFiles installed = findBootFiles("/");
    writeFile(path("syslinux/mbr.bin"), readFile(installed.bootCode));
    for (const QString& module : installed.modules)
        QFile::copy(module, path("syslinux/" + module.section('/', -1)));
    writeFile(path("syslinux/ldlinux.c32"), loader.module);
}

MacImageDisk::~MacImageDisk()
{
    qputenv("PATH", pathBefore);
}

void MacImageDisk::before(const QString& call, const QByteArray& body) const
{
    writeFile(path("before-" + call), body + '\n');
}

void MacImageDisk::changeFacts(const QByteArray& from, const QByteArray& to) const
{
    for (const char* name : {"facts", "facts1"})
        writeFile(path(name), readFile(path(name)).replace(from, to));
}

QString MacImageDisk::mounted() const
{
    return QString::fromUtf8(readFile(path("mounted"))).trimmed();
}

void MacImageDisk::mountAt(const QString& place) const
{
    runOrStop("mkdir", {"-p", place});
    runOrStop("diskutil", {"mount", "-mountPoint", place, partition()});
    QFile::remove(path("calls"));
}

QStringList MacImageDisk::calls() const
{
    return QString::fromUtf8(readFile(path("calls"))).split('\n', Qt::SkipEmptyParts);
}

bool MacImageDisk::isUntouched() const
{
    return readFile(disk()) == atFirst;
}

void MacImageDisk::put(const QString& name, const QByteArray& content) const
{
    writeFile(path("files/" + name), content);
    runOrStop("mcopy", {"-o", "-i", disk() + "@@1048576", path("files/" + name), "::/" + name});
}

MacBootableDisk::Setup MacImageDisk::setup(QStringList* said) const
{
    MacBootableDisk::Setup setup;
    setup.request.disk = disk();
    setup.request.mountPoint = mountPoint();
    setup.bootFiles = shippedBootFiles(path("syslinux"));
    setup.say = [said](const QString& line) { said->append(line); };
    setup.pauseMs = 1;
    return setup;
}
