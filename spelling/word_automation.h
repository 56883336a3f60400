// SPDX-License-Identifier: MIT
// Microsoft Word as the operations that the program needs of it.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

namespace tolvo {

/// A stretch of Word's text. Offsets count from 0; the end is the offset after the last character.
struct WordRange {
    QString text;
    int start = 0;
    int end = 0;
};

/// A language that Word knows.
struct WordLanguage {
    QString name;
    QString localName;
    int id = 0;
};

/// The active custom dictionary; its file is path + separator + name.
struct WordCustomDictionary {
    QString path;
    QString separator;
    QString name;
};

/// One running Word with at most one document. Every operation may fail with a Failure. The destructor
/// releases Word; it neither closes the document nor quits Word.
class WordApplication {
  public:
    virtual ~WordApplication() = default;

    /// Opens a new, empty document.
    virtual void addDocument() = 0;
    virtual void setVisible(bool visible) = 0;
    virtual void setContentText(const QString &text) = 0;
    [[nodiscard]] virtual QString contentText() = 0;
    /// Selects the content, sets its language and its no-proofing mark to 0, and turns off Word's language
    /// detection.
    virtual void setContentLanguage(int LangID) = 0;
    /// Allows Word to bring its dialog to the front.
    virtual void allowForeground() = 0;
    virtual void CheckSpelling() = 0;
    virtual void CheckGrammar() = 0;
    [[nodiscard]] virtual QList<WordRange> spellingErrors() = 0;
    [[nodiscard]] virtual QStringList suggestions(const WordRange &error) = 0;
    [[nodiscard]] virtual WordCustomDictionary activeCustomDictionary() = 0;
    [[nodiscard]] virtual QList<WordLanguage> languages() = 0;
    /// Close and quit without saving.
    virtual void closeDocument() = 0;
    virtual void quit() = 0;
};

/// Starts Word.
class WordAutomation {
  public:
    virtual ~WordAutomation() = default;
    /// False where Word can't run, or is not installed.
    [[nodiscard]] virtual bool isPossible() const { return true; }
    /// Starts a new, hidden instance. Fails with 429 if that is not possible.
    [[nodiscard]] virtual std::unique_ptr<WordApplication> create() = 0;
};

/// A platform without Word: every creation fails with 429.
class NoWordAutomation final : public WordAutomation {
  public:
    [[nodiscard]] bool isPossible() const override { return false; }
    [[nodiscard]] std::unique_ptr<WordApplication> create() override;
};

/// Word as this system starts it: on Windows by COM automation.
[[nodiscard]] std::unique_ptr<WordAutomation> wordOfSystem();

} // namespace tolvo
