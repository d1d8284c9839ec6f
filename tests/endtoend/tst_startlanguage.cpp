// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testmain.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

// Which translation the program, as a process of its own, takes at its start. The system tells it:
// translations that are in use are mapped into the process's memory.
class TstStartLanguage : public TestCase
{
    Q_OBJECT

private slots:
    void localeChoosesTheTranslation_data();
    void localeChoosesTheTranslation();
    void translationThatIsMissingLeavesEnglish();
};

namespace
{

constexpr int limitMs = 60'000;

// The program in the given locale, until it goes out of scope.
class RunningProgram
{
public:
    RunningProgram(const QString& path, const QStringList& variables)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : environment.keys()) {
            if (name.startsWith("LC_") || name == "LANG" || name == "LANGUAGE")
                environment.remove(name);
        }
        environment.insert("XDG_RUNTIME_DIR", QDir::tempPath());
        for (const QString& variable : variables)
            environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(path, QStringList());
        if (!process.waitForStarted())
            qFatal("%s did not start", qPrintable(path));
    }

    ~RunningProgram()
    {
        process.terminate();
        if (!process.waitForFinished(5000))
            process.kill();
    }

    bool isRunning() { return process.state() == QProcess::Running; }

    // The translations in its memory, by name.
    QStringList translations() const
    {
        static const QRegularExpression file("/translations/(\\S+\\.qm)");
        QFile maps(QString("/proc/%1/maps").arg(process.processId()));
        if (!maps.open(QIODevice::ReadOnly))
            return {};
        QStringList names;
        const QString text = QString::fromUtf8(maps.readAll());
        QRegularExpressionMatchIterator match = file.globalMatch(text);
        while (match.hasNext())
            names.append(match.next().captured(1));
        names.removeDuplicates();
        names.sort();
        return names;
    }

    // Whether the font engine is loaded, which the first window is drawn with. By then the
    // translations are chosen.
    bool hasDrawnItsWindow() const
    {
        QFile maps(QString("/proc/%1/maps").arg(process.processId()));
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("/fonts/");
    }

private:
    QProcess process;
};

} // namespace

void TstStartLanguage::localeChoosesTheTranslation_data()
{
    QTest::addColumn<QStringList>("variables");
    QTest::addColumn<QString>("code");
    const auto add = [](const char* name, const char* locale, const char* code) {
        QTest::newRow(name) << QStringList{QString("LC_ALL=") + locale + ".UTF-8"} << code;
    };
    add("English", "en_US", "en");
    add("English of the Netherlands, a language first", "en_NL", "en");
    add("Chinese", "zh_CN", "zh");
    add("Chinese of Taiwan", "zh_TW", "zh");
    add("Japanese", "ja_JP", "ja");
    add("French of Canada", "fr_CA", "fr");
    add("German of Austria", "de_AT", "de");
    add("Spanish of Mexico", "es_MX", "es");
    add("Portuguese of Portugal", "pt_PT", "pt");
    add("Polish", "pl_PL", "pl");
    add("Italian", "it_IT", "it");
    add("Russian", "ru_RU", "ru");
    add("Dutch", "nl_NL", "nl");
    add("Frisian of the Netherlands, by its country", "fy_NL", "nl");
    add("Dutch of Belgium, which is English", "nl_BE", "en");
    add("Swedish", "sv_SE", "sv");
    add("Swedish of Finland", "sv_FI", "sv");
    add("Korean, which is English", "ko_KR", "en");
    QTest::newRow("none") << QStringList{"LC_ALL=C"} << "en";
    QTest::newRow("nothing set") << QStringList() << "en";
    QTest::newRow("by LANG alone") << QStringList{"LANG=it_IT.UTF-8"} << "it";
    QTest::newRow("LC_ALL before LANG")
        << QStringList{"LANG=it_IT.UTF-8", "LC_ALL=sv_SE.UTF-8"} << "sv";
}

void TstStartLanguage::localeChoosesTheTranslation()
{
    QFETCH(QStringList, variables);
    QFETCH(QString, code);
    QStringList expected{"qt_" + code + ".qm"};
    // The toolkit is English by itself.
    if (code != "en")
        expected.append("qtbase_" + code + ".qm");
    RunningProgram program(KORVEX_PROGRAM, variables);
    QVERIFY(QTest::qWaitFor([&] { return program.hasDrawnItsWindow(); }, limitMs));
    QTRY_COMPARE_WITH_TIMEOUT(program.translations(), expected, limitMs);
    QVERIFY(program.isRunning());
}

void TstStartLanguage::translationThatIsMissingLeavesEnglish()
{
    QTemporaryDir folder;
    const QDir translations(QFileInfo(KORVEX_PROGRAM).path() + "/translations");
    QVERIFY(QDir(folder.path()).mkdir("translations"));
    for (const QString& name : translations.entryList({"*.qm"})) {
        if (!name.endsWith("_sv.qm"))
            QVERIFY(
                QFile::copy(translations.filePath(name), folder.filePath("translations/" + name)));
    }
    const QString path = folder.filePath("korvex-iso-editor");
    QVERIFY(QFile::copy(KORVEX_PROGRAM, path));
    RunningProgram swedish(path, {"LC_ALL=sv_SE.UTF-8"});
    RunningProgram german(path, {"LC_ALL=de_DE.UTF-8"});
    QVERIFY(QTest::qWaitFor(
        [&] { return swedish.hasDrawnItsWindow() && german.hasDrawnItsWindow(); }, limitMs));
    QVERIFY(swedish.translations().isEmpty());
    QVERIFY(swedish.isRunning());
    // The same copy works for a language that is there.
    QTRY_COMPARE_WITH_TIMEOUT(german.translations(), QStringList({"qt_de.qm", "qtbase_de.qm"}),
                              limitMs);
}

KORVEX_TEST_MAIN(TstStartLanguage)
#include "tst_startlanguage.moc"
