// SPDX-License-Identifier: MIT
// A spelling check without a window: a small dictionary in a folder of its own, boxes that are kept, a web
// service and a Word that play their parts.
#pragma once

#include "platform/http_client.h"
#include "preferences/settings_store.h"
#include "spelling/CSpelling.h"
#include "spelling/Proofing.h"
#include "spelling/dictionaries.h"
#include "spelling/word_automation.h"
#include "tests/support/boxes.h"
#include "tests/support/failures.h"
#include "tests/support/silent_host.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>
#include <utility>

namespace tolvo::test {

inline QString u(const char *text) {
    return QString::fromUtf8(text);
}

inline void writeFile(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
}

inline QByteArray fileContents(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// An error of After the Deadline's reply: string, type, precontext, options, description.
inline QByteArray error(const char *phrase, const char *type, const char *context = "",
                        const QByteArrayList &options = {}, const char *why = "") {
    QByteArray xml = QByteArray("<error><string>") + phrase + "</string><type>" + type +
                     "</type><description>" + why + "</description><precontext>" + context + "</precontext>";
    if (!options.isEmpty())
        xml += "<suggestions><option>" + options.join("</option><option>") + "</option></suggestions>";
    return xml + "</error>";
}

struct ScriptedHttp : HttpClient {
    HttpReply get(const QByteArray &url) override {
        urls.append(url);
        return reply;
    }
    HttpReply post(const QByteArray &, const QByteArray &, const QByteArray &) override { return {}; }

    HttpReply reply;
    QList<QByteArray> urls;
};

/// Writes down what it is asked to do; the operation named `failing` fails with 1004.
class ScriptedWord : public WordAutomation {
  public:
    bool isPossible() const override { return possible; }
    std::unique_ptr<WordApplication> create() override {
        if (!installed)
            throw Failure(failureNumber::objectNotCreated, u("no Word"));
        note(u("create"));
        return std::make_unique<Application>(*this);
    }

    bool possible = true;
    bool installed = true;
    QString failing;
    QString answer; ///< the content after a dialog
    QList<WordRange> errors;
    QString customFolder;
    QStringList log;

  private:
    void note(const QString &operation) {
        log += operation;
        if (operation == failing)
            throw Failure(1004, u("Word refused"));
    }

    class Application : public WordApplication {
      public:
        explicit Application(ScriptedWord &script) : m_script(script) {}
        ~Application() override { m_script.log += u("release"); }
        void addDocument() override { m_script.note(u("add")); }
        void setVisible(bool) override { m_script.note(u("visible")); }
        void setContentText(const QString &text) override { m_script.note(u("text ") + text); }
        QString contentText() override { return m_script.answer; }
        void setContentLanguage(int LangID) override {
            m_script.note(u("language ") + QString::number(LangID));
        }
        void allowForeground() override { m_script.note(u("foreground")); }
        void CheckSpelling() override { m_script.note(u("spelling")); }
        void CheckGrammar() override { m_script.note(u("grammar")); }
        QList<WordRange> spellingErrors() override { return m_script.errors; }
        QStringList suggestions(const WordRange &error) override { return {error.text.toUpper()}; }
        WordCustomDictionary activeCustomDictionary() override {
            return {m_script.customFolder, u("/"), u("custom.dic")};
        }
        QList<WordLanguage> languages() override {
            return {{u("French"), u("français"), 1036}, {u("German"), u("Deutsch"), 1031}};
        }
        void closeDocument() override { m_script.note(u("close")); }
        void quit() override { m_script.note(u("quit")); }

      private:
        ScriptedWord &m_script;
    };
};

class SpellingWorld : public ::testing::Test, public ProofingHost {
  public:
    SpellingWorld() {
        QDir(folder.path()).mkpath(u("program/Dictionaries"));
        dictionary(
            u("en_GB"), "SET UTF-8\nTRY esianrtolcdugmphbyfvkwz\nWORDCHARS '-\n",
            "14\nthe\nquick\nbrown\nfox\ndog\nhello\ncolour\nis\na\nI\nthen\ndon't\nwell-known\nthere\n");
        writeFile(dictionaries() + u("/persdict.dat"), "");
        services.systemDictionaries = {};
        services.desktopLocale = {};
        setProvider(1);
    }

    // ProofingHost
    void setStatus(const QString &text) override { status += text; }
    void warn(const QString &, const QString &) override {}
    const cTextMethods &textMethods() const override { return oTextMethods; }

    /// The service is asked from now on, and finds these errors.
    void service(const QByteArray &errors) {
        setProvider(2);
        services.atdEndpoint = u("http://service");
        http.reply = {200, u("OK"), "<?xml version=\"1.0\"?>\n<results>\n" + errors + "</results>"};
    }

    /// A check with a provider.
    struct Check : CSpelling {
        Check(SpellingWorld &world, int provider, int language = -1)
            : CSpelling(world.services, world.oTextMethods), LangID(language) {
            init(provider, LangID, locale);
        }
        int LangID;
        QString locale;
    };

    QString dictionaries() const { return services.dataFolder + u("/Dictionaries"); }
    void dictionary(const QString &name, const QByteArray &aff, const QByteArray &dic) {
        writeFile(dictionaries() + u'/' + name + u(".aff"), aff);
        writeFile(dictionaries() + u'/' + name + u(".dic"), dic);
    }
    void setProvider(int provider) {
        store.SaveSetting(u("Tolvo"), u("Spelling"), u("Provider"), QString::number(provider));
    }

    /// The boxes since the last call: error reports as "number description (class::procedure)", others by
    /// their text.
    [[nodiscard]] QStringList said() {
        QStringList texts;
        for (const Box &box : boxes.take()) {
            const QStringList lines = box.text.split(u("\r\n"));
            if (!box.text.startsWith(u("Sorry, "))) {
                texts += box.text;
                continue;
            }
            const qsizetype number = lines.at(3).lastIndexOf(u(" (error "));
            texts += lines[3].mid(number + 8).chopped(1) + u' ' + lines[3].left(number) + u(" (") +
                     lines.at(4).mid(4) + u')';
        }
        return texts;
    }

    /// One error a line: "teh 0-3 1 the,then".
    static QStringList told(const CSpellingErrors &errors) {
        QStringList lines;
        for (const auto &error : errors)
            lines += QStringLiteral("%1 %2-%3 %4 %5")
                         .arg(error->ErrorText())
                         .arg(error->TextStart())
                         .arg(error->TextEnd())
                         .arg(error->errorType)
                         .arg(error->SpellingSuggestions().texts().join(u','))
                         .trimmed();
        return lines;
    }

    QTemporaryDir folder;
    SettingsStore store{QStringLiteral(":memory:")};
    NamedBoxes boxes;
    ScriptedHttp http;
    ScriptedWord word;
    cTextMethods oTextMethods{*this, [](const QString &) { return false; }};
    SpellingServices services{
        store, boxes, http, word, folder.path() + u("/program"), folder.path() + u("/user"), QString()};
    QStringList status;
};

} // namespace tolvo::test
