// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editsavefixture.h"

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "extractpagefixture.h"
#include "imagemaker.h"
#include "modaldriver.h"
#include "processcounts.h"
#include "testfiles.h"
#include "toolstopper.h"
#include "trigger.h"

#include <QApplication>
#include <QTest>

namespace
{

const QString gateName = "unpacking";
constexpr int limitMs = 60000;

void collectPaths(const Item& folder, QStringList& paths)
{
    for (const Item& child : folder.children) {
        paths.append(child.path);
        collectPaths(child, paths);
    }
}

} // namespace

void EditSaveFixture::startLoadingImage(const QString& imagePath) const
{
    ModalDriver driver;
    driver.typePath(imagePath);
    page->OnLoadISO();
}

bool EditSaveFixture::browse(const QString& imagePath) const
{
    startLoadingImage(imagePath);
    return waitUntilListed();
}

void EditSaveFixture::openRoot() const
{
    tree()->setCurrentItem(tree()->topLevelItem(0));
    page->OnTreeCurrentChanged();
}

std::unique_ptr<HeldFolder> EditSaveFixture::addHeld(qint64 bytes) const
{
    auto held = std::make_unique<HeldFolder>(path("held"), bytes);
    add({path("held")});
    if (!QTest::qWaitFor([&held] { return held->isHolding(); }, 60000))
        qFatal("The copy has not begun");
    return held;
}

bool EditSaveFixture::loadHalfway(const QStringList& unpacking)
{
    setArchiver(ExtractPageFixture::usualEntries(),
                QStringList(archiver.holding(gateName)) + unpacking);
    startLoading();
    limit.setSingleShot(true);
    limit.callOnTimeout([this] { letUnpack(); });
    limit.start(limitMs);
    return waitUntilListed() && archiver.isHeld(gateName);
}

void EditSaveFixture::letUnpack() const
{
    archiver.release(gateName);
}

bool EditSaveFixture::waitForCall(int number) const
{
    return QTest::qWaitFor([this, number] { return author.calls().size() == number; }, 60000);
}

QString EditSaveFixture::save(const QString& isoPath) const
{
    startSaving(isoPath);
    return waitForMessage();
}

bool EditSaveFixture::saveAnd(const QString& isoPath, const std::function<bool()>& condition,
                              const std::function<void()>& action) const
{
    const Trigger trigger(condition, action);
    startSaving(isoPath);
    return trigger.hasFired();
}

bool EditSaveFixture::isShowing(const QString& text) const
{
    return progress() && progress()->isVisible() && progressText() == text;
}

bool EditSaveFixture::areToolsGone()
{
    return childProcesses().isEmpty() && processesOf("scriptedtool").isEmpty() && areRunnersGone();
}

int EditSaveFixture::browseWhileUnpacking(const QString& imagePath) const
{
    ToolStopper unpacking("x");
    if (!browse(imagePath))
        qFatal("The image has not been listed");
    return unpacking.catchWhen([] { return !entriesOf(workFolder()).isEmpty(); });
}

bool EditSaveFixture::isUsable() const
{
    return page->isEnabled() && button("save")->isEnabled() && button("loadiso")->isEnabled() &&
           !progress()->isVisible() && !QApplication::activeModalWidget() &&
           !QApplication::overrideCursor();
}

QStringList EditSaveFixture::allPaths() const
{
    QStringList paths;
    collectPaths(*tree()->topLevelItem(0)->data(0, Qt::UserRole).value<Item*>(), paths);
    paths.sort();
    return paths;
}

QMap<QString, QByteArray> EditSaveFixture::contentOf(const QString& imagePath)
{
    const QTemporaryDir extracted;
    extractImage(imagePath, extracted.path());
    return hashesBelow(extracted.path());
}
