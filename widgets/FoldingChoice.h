// SPDX-License-Identifier: MIT
#pragma once

#include <QStyleOptionButton>
#include <QStylePainter>
#include <type_traits>

class QCheckBox;

namespace tolvo {

/// The text with line breaks in place of blanks, so that no line is wider than `width` pixels, but for single
/// words that are. "&" before a letter takes no room.
/// For example foldedText("&Skip file names", metrics, 0) is "&Skip\nfile\nnames".
[[nodiscard]] QString foldedText(const QString &text, const QFontMetrics &metrics, int width);

/// A QCheckBox or QRadioButton whose caption goes on in further lines where there is no room for it in one.
template <class Choice>
class FoldingChoice final : public Choice {
  public:
    explicit FoldingChoice(const QString &caption, QWidget *parent = nullptr) : Choice(caption, parent) {
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred, this->sizePolicy().controlType());
        policy.setHeightForWidth(true);
        this->setSizePolicy(policy);
    }

    [[nodiscard]] QSize minimumSizeHint() const override {
        const QSize whole = this->sizeHint();
        return {beside() + measured(captionAt(0)).width(), whole.height()};
    }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override {
        const int further = measured(captionAt(width)).height() - measured(this->text()).height();
        return this->sizeHint().height() + further;
    }

  protected:
    void paintEvent(QPaintEvent *) override {
        QStyleOptionButton option;
        this->initStyleOption(&option);
        option.text = captionAt(this->width());
        constexpr bool isCheckBox = std::is_same_v<Choice, QCheckBox>;
        QStylePainter(this).drawControl(isCheckBox ? QStyle::CE_CheckBox : QStyle::CE_RadioButton, option);
    }

  private:
    [[nodiscard]] QSize measured(const QString &caption) const {
        return this->fontMetrics().size(Qt::TextShowMnemonic, caption);
    }
    /// The width of all but the caption.
    [[nodiscard]] int beside() const { return this->sizeHint().width() - measured(this->text()).width(); }
    [[nodiscard]] QString captionAt(int width) const {
        return foldedText(this->text(), this->fontMetrics(), width - beside());
    }
};

} // namespace tolvo
