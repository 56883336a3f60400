// SPDX-License-Identifier: MIT
// Microsoft Word as a list of operations: all that the program needs of it.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

namespace tolvo {

/// A stretch of Word's text; offsets from 0, the end just behind.
struct WordRange {
    QString text;
    int start = 0;
    int end = 0;
};

struct WordLanguage {
    QString name;
    QString localName;
    int id = 0;
};

/// The active custom dictionary: its file is path, separator and name put together.
struct WordCustomDictionary {
    QString path;
    QString separator;
    QString name;
};

/// One running Word with at most one document. Every operation may fail with a Failure. Destroying the object
/// releases Word but neither closes the document nor quits it.
class WordApplication {
  public:
    virtual ~WordApplication() = default;

    /// A new empty document.
    virtual void addDocument() = 0;
    virtual void setVisible(bool visible) = 0;
    virtual void setContentText(const QString &text) = 0;
    [[nodiscard]] virtual QString contentText() = 0;
    /// Selects the content, sets its language, its no-proofing mark to 0, and Word's own language detection
    /// to off.
    virtual void setContentLanguage(int LangID) = 0;
    /// Gives Word the right to bring its dialog to the front.
    virtual void allowForeground() = 0;
    virtual void CheckSpelling() = 0;
    virtual void CheckGrammar() = 0;
    [[nodiscard]] virtual QList<WordRange> spellingErrors() = 0;
    [[nodiscard]] virtual QStringList suggestions(const WordRange &error) = 0;
    [[nodiscard]] virtual WordCustomDictionary activeCustomDictionary() = 0;
    [[nodiscard]] virtual QList<WordLanguage> languages() = 0;
    /// Both without saving.
    virtual void closeDocument() = 0;
    virtual void quit() = 0;
};

class WordAutomation {
  public:
    virtual ~WordAutomation() = default;
    /// False where the platform can't have Word at all.
    [[nodiscard]] virtual bool isPossible() const { return true; }
    /// A new, hidden instance. Fails with number 429 if it can't be created.
    [[nodiscard]] virtual std::unique_ptr<WordApplication> create() = 0;
};

/// A platform without Word: every creation fails with 429.
class NoWordAutomation final : public WordAutomation {
  public:
    [[nodiscard]] bool isPossible() const override { return false; }
    [[nodiscard]] std::unique_ptr<WordApplication> create() override;
};

} // namespace tolvo
