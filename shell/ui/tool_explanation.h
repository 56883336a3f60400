// SPDX-License-Identifier: MIT
// Says below the panel what the row under the pointer or with the focus does.
#pragma once

#include <QWidget>

namespace tolvo {

struct FinderEntry;

/// As many whole lines as there is room for, the important ones first: name, purpose, example, key, hint.
/// Screen readers read the same with the row itself.
class ToolExplanation : public QWidget {
    Q_OBJECT
  public:
    explicit ToolExplanation(QWidget *parent = nullptr);

    /// `hint` is what keys and mouse do there.
    void explain(const FinderEntry &entry, const QString &hint);
    /// No row: only a hint.
    void clear(const QString &hint);

    /// The height that nearly all explanations need.
    [[nodiscard]] int wantedHeight() const;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    struct Paragraph {
        QString text;
        bool bold = false;
        bool quiet = false;
    };
    void show(const QList<Paragraph> &paragraphs);

    QList<Paragraph> m_paragraphs;
};

} // namespace tolvo
