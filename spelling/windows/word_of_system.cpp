// SPDX-License-Identifier: MIT
// Word as an automation object: the members of its object model that the operations need.
#include "spelling/word_automation.h"

#include "spelling/windows/AutomationObject.h"

#include <objbase.h>

namespace tolvo {

namespace {

const QString programId = QStringLiteral("Word.Application");
constexpr int doNotSave = 0;

class ComWord final : public WordApplication {
  public:
    ComWord() : m_word(AutomationObject::create(programId)) {}

    void addDocument() override {
        const AutomationObject documents = m_word.object(L"Documents");
        documents.call(L"Add");
        m_document = m_word.object(L"ActiveDocument");
    }
    void setVisible(bool visible) override { m_word.set(L"Visible", visible); }
    void setContentText(const QString &text) override { content().set(L"Text", text); }
    QString contentText() override { return content().get(L"Text").text(); }
    void setContentLanguage(int LangID) override {
        content().call(L"Select");
        const AutomationObject selection = m_word.object(L"Selection");
        selection.set(L"LanguageID", LangID);
        selection.set(L"NoProofing", 0);
        m_word.set(L"CheckLanguage", false);
    }
    void allowForeground() override { CoAllowSetForegroundWindow(m_word.dispatch(), nullptr); }
    void CheckSpelling() override { m_document.call(L"CheckSpelling"); }
    void CheckGrammar() override { m_document.call(L"CheckGrammar"); }

    QList<WordRange> spellingErrors() override {
        QList<WordRange> errors;
        forEachItem(m_document.object(L"SpellingErrors"), [&](const AutomationObject &error) {
            errors += {error.get(L"Text").text(), error.get(L"Start").number(), error.get(L"End").number()};
        });
        return errors;
    }
    QStringList suggestions(const WordRange &error) override {
        QStringList names;
        const AutomationObject range = m_document.object(L"Range", {error.start, error.end});
        forEachItem(range.object(L"GetSpellingSuggestions"),
                    [&](const AutomationObject &suggestion) { names += suggestion.get(L"Name").text(); });
        return names;
    }
    WordCustomDictionary activeCustomDictionary() override {
        const AutomationObject dictionaries = m_word.object(L"CustomDictionaries");
        const AutomationObject active = dictionaries.object(L"ActiveCustomDictionary");
        return {active.get(L"Path").text(), m_word.get(L"PathSeparator").text(), active.get(L"Name").text()};
    }
    QList<WordLanguage> languages() override {
        QList<WordLanguage> known;
        forEachItem(m_word.object(L"Languages"), [&](const AutomationObject &language) {
            known += {language.get(L"Name").text(), language.get(L"NameLocal").text(),
                      language.get(L"ID").number()};
        });
        return known;
    }
    void closeDocument() override { m_document.call(L"Close", {doNotSave}); }
    void quit() override { m_word.call(L"Quit", {doNotSave}); }

  private:
    [[nodiscard]] AutomationObject content() const { return m_document.object(L"Content"); }

    template <class Use>
    static void forEachItem(const AutomationObject &collection, const Use &use) {
        const int count = collection.get(L"Count").number();
        for (int i = 1; i <= count; ++i)
            use(collection.object(L"Item", {i}));
    }

    AutomationObject m_word;
    AutomationObject m_document;
};

class ComWordAutomation final : public WordAutomation {
  public:
    [[nodiscard]] bool isPossible() const override { return AutomationObject::isRegistered(programId); }
    [[nodiscard]] std::unique_ptr<WordApplication> create() override { return std::make_unique<ComWord>(); }
};

} // namespace

std::unique_ptr<WordAutomation> wordOfSystem() {
    return std::make_unique<ComWordAutomation>();
}

} // namespace tolvo
