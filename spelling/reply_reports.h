// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo {

class MessageBoxes;

/// What is wrong with a service's reply, reported in one message of each kind however often it occurs.
///   "Text 'teh' cannot be found", "Text 'teh' cannot be found, nor 4,999 more"
class ReplyReports {
  public:
    /// A phrase that the text doesn't hold.
    void lost(const QString &phrase) { note(m_lost, phrase); }
    /// An element that a reply doesn't have.
    void unexpected(const QString &element) { note(m_unexpected, element); }

    /// Shows what has come together, and forgets it.
    void show(MessageBoxes &boxes);

  private:
    struct Kind {
        QString first;
        qsizetype count = 0;
    };
    static void note(Kind &kind, const QString &what) {
        if (++kind.count == 1)
            kind.first = what;
    }
    Kind m_unexpected;
    Kind m_lost;
};

} // namespace tolvo
