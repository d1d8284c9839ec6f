// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "prompttexts.h"
#include "testcase.h"
#include "testmain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryFile>
#include <QUrl>

#include <sys/stat.h>

namespace
{

const QString scriptFolder = KORVEX_MACOS_PROMPTS;
const QByteArray hostLine = "#!/usr/bin/osascript -l JavaScript\n";

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

// What happened, in order: a word and its value.
using Events = QList<QPair<QString, QString>>;

// Runs the script against the stand-in of its host. A null answer is Cancel.
Events run(const QString& script, const QString& answer)
{
    QByteArray source = contents(script);
    if (!source.startsWith(hostLine))
        return {{"no script", script}};
    source.remove(0, hostLine.size());
    const QByteArray given = answer.isNull() ? "null" : '"' + QUrl::toPercentEncoding(answer) + '"';
    QTemporaryFile file;
    if (!file.open())
        return {{"no file", file.errorString()}};
    file.write("var answer = " + given + ";\n" +
               contents(KORVEX_TEST_DATA "/askpass/scriptinghost.js") + source + "\nenter();\n");
    file.close();
    QProcess engine;
    engine.start("duk", {file.fileName()});
    if (!engine.waitForFinished() || engine.exitCode() != 0)
        return {{"engine", engine.errorString() + engine.readAllStandardError()}};
    Events events;
    const QList<QByteArray> lines = engine.readAllStandardOutput().trimmed().split('\n');
    for (const QByteArray& line : lines) {
        const int blank = line.indexOf(' ');
        events.append({line.left(blank), QUrl::fromPercentEncoding(line.mid(blank + 1))});
    }
    return events;
}

QStringList words(const Events& events)
{
    QStringList all;
    for (const auto& event : events)
        all.append(event.first);
    return all;
}

QString valueOf(const QString& word, const Events& events)
{
    for (const auto& event : events) {
        if (event.first == word)
            return event.second;
    }
    return QString();
}

QJsonObject dialogOf(const PromptTexts& texts)
{
    return {{"withTitle", texts.title},
            {"withIcon", "caution"},
            {"defaultAnswer", ""},
            {"hiddenAnswer", true},
            {"defaultButton", texts.ok},
            {"cancelButton", texts.cancel},
            {"buttons", QJsonArray{texts.cancel, texts.ok}}};
}

const PromptTexts oddTexts{"A \"quoted\" title",
                           QString::fromUtf8("Back\\slash \\n \\\" \\; [x] ${HOME} @CODE@ "
                                             "\u2028line\u2029paragraph"),
                           "it's; so:", "<O&K>", "$(no)"};

} // namespace

// The scripts for macOS, which the build makes on every system, in a stand-in of their host.
class TstMacosPrompt : public TestCase
{
    Q_OBJECT

private slots:
    void scriptAsksInItsLanguage_data();
    void scriptAsksInItsLanguage();
    void cancelTellsNothing_data();
    void cancelTellsNothing();
    void oddPasswordComesOutByteForByte_data();
    void oddPasswordComesOutByteForByte();
    void oddTextsOfTheTableAreShownAsTheyAre();
    void blanksAroundColumnsDoNotCount();
};

void TstMacosPrompt::scriptAsksInItsLanguage_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("code");
    QTest::newRow("English") << "askpass.js"
                             << "en";
    for (const char* const code :
         {"zh", "ja", "fr", "de", "es", "pt", "pl", "it", "ru", "nl", "sv"})
        QTest::newRow(code) << QString("askpass_%1.js").arg(code) << code;
}

void TstMacosPrompt::scriptAsksInItsLanguage()
{
    QFETCH(QString, script);
    QFETCH(QString, code);
    const QString path = scriptFolder + "/shipped/" + script;
    struct stat status{};
    QCOMPARE(::stat(qPrintable(path), &status), 0);
    QCOMPARE(status.st_mode & mode_t(07777), mode_t(0755));

    const PromptTexts texts = PromptTexts::of(code);
    const Events events = run(path, "secret");
    QCOMPARE(words(events), QStringList({"activate", "text", "options", "output", "exit"}));
    QCOMPARE(valueOf("text", events), texts.why + "\n\n" + texts.field);
    QCOMPARE(QJsonDocument::fromJson(valueOf("options", events).toUtf8()).object(),
             dialogOf(texts));
    QCOMPARE(valueOf("output", events), QString("secret\n"));
    QCOMPARE(valueOf("exit", events), QString("0"));
}

void TstMacosPrompt::cancelTellsNothing_data()
{
    scriptAsksInItsLanguage_data();
}

void TstMacosPrompt::cancelTellsNothing()
{
    QFETCH(QString, script);
    const Events events = run(scriptFolder + "/shipped/" + script, QString());
    QCOMPARE(words(events), QStringList({"activate", "text", "options", "error"}));
    QCOMPARE(valueOf("error", events), QString("-128"));
}

void TstMacosPrompt::oddPasswordComesOutByteForByte_data()
{
    QTest::addColumn<QString>("password");
    QTest::newRow("empty") << "";
    QTest::newRow("blanks around") << "  a  b ";
    QTest::newRow("quotes") << "\"'`\"";
    QTest::newRow("backslashes") << "\\\\n\\0\\";
    QTest::newRow("dash") << "-n";
    QTest::newRow("percent") << "%s%20%";
    QTest::newRow("Unicode") << QString::fromUtf8("pässwörd 密码 пароль");
    QTest::newRow("outside the first plane") << QString::fromUtf8("🔑𝄞");
    QTest::newRow("decomposed") << QString::fromUtf8("a\xCC\x88");
    QTest::newRow("line separator") << QString(QChar(0x2028));
    QTest::newRow("long") << QString(5000, 'x');
}

void TstMacosPrompt::oddPasswordComesOutByteForByte()
{
    QFETCH(QString, password);
    const Events events = run(scriptFolder + "/shipped/askpass.js", password);
    QCOMPARE(valueOf("output", events), password + '\n');
    QCOMPARE(words(events).count("output"), 1);
    QCOMPARE(valueOf("exit", events), QString("0"));
}

void TstMacosPrompt::oddTextsOfTheTableAreShownAsTheyAre()
{
    const Events events = run(scriptFolder + "/odd/askpass.js", "secret");
    QCOMPARE(valueOf("text", events), oddTexts.why + "\n\n" + oddTexts.field);
    QCOMPARE(QJsonDocument::fromJson(valueOf("options", events).toUtf8()).object(),
             dialogOf(oddTexts));
    QCOMPARE(valueOf("exit", events), QString("0"));
    // Raw, they would end the literal in older engines.
    QVERIFY(contents(scriptFolder + "/odd/askpass.js").contains("\\u2028line\\u2029paragraph"));
}

void TstMacosPrompt::blanksAroundColumnsDoNotCount()
{
    const Events events = run(scriptFolder + "/odd/askpass_xx.js", "secret");
    QCOMPARE(valueOf("text", events), QString::fromUtf8("🔑 w\n\nf"));
    QCOMPARE(QJsonDocument::fromJson(valueOf("options", events).toUtf8()).object(),
             dialogOf({"t", "", "f", "o", "c"}));
}

KORVEX_TEST_MAIN(TstMacosPrompt)
#include "tst_macosprompt.moc"
