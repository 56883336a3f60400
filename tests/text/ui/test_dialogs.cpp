// SPDX-License-Identifier: MIT
// Each dialog as a user meets it: what is typed and pressed, what is shown, what comes back.
#include "tests/support/boxes.h"
#include "tests/support/other_settings.h"
#include "tests/text/engine.h"
#include "tests/ui/user.h"
#include "text/ui/frmStats.h"
#include "text/ui/tool_dialogs.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QTreeWidget>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

/// A user of one dialog, whose fields and buttons go by their names.
class User {
  public:
    explicit User(QDialog &dialog) : m_dialog(dialog) { activate(m_dialog); }

    template <class Control>
    Control &control(const char *name) {
        return child<Control>(m_dialog, name);
    }
    void types(const char *field, const QString &text) { type(m_dialog, field, text); }
    void pastes(const char *field, const QString &text) {
        control<QLineEdit>(field).clear();
        control<QLineEdit>(field).insert(text);
    }
    void presses(const char *field, Qt::Key key) { press(control<QLineEdit>(field), key); }
    void presses(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { press(m_dialog, key, modifiers); }
    void clicks(const char *button) { click(m_dialog, button); }
    QString sees(const char *field) { return control<QLineEdit>(field).text(); }
    QString sample() { return control<QPlainTextEdit>("txtSample").toPlainText().replace(u'\n', u'|'); }
    bool chosen(const char *button) { return control<QAbstractButton>(button).isChecked(); }
    bool enabled(const char *name) { return control<QWidget>(name).isEnabled(); }

  private:
    QDialog &m_dialog;
};

class Dialogs : public Engine {
  protected:
    template <class Settings>
    SettingsDialogPtr<Settings> made(const Settings &settings) {
        return makeToolDialog(settings, {engine, boxes});
    }
    NamedBoxes boxes;
};

TEST_F(Dialogs, numberStyleKeepsItsNumbersInBounds) {
    const auto dialog = made(NumberListSettings{});
    User user(*dialog);
    user.types("txtStart", u"1a2"_s);
    EXPECT_EQ(user.sees("txtStart"), u"12");
    user.pastes("txtStart", u" 3x4-"_s);
    EXPECT_EQ(user.sees("txtStart"), u"34");
    user.types("txtStart", u"5000"_s);
    EXPECT_EQ(user.sees("txtStart"), u"999");
    user.types("txtStart", u"0"_s);
    EXPECT_EQ(user.sees("txtStart"), u"0");
    user.presses("txtStart", Qt::Key_Tab);
    EXPECT_EQ(user.sees("txtStart"), u"1");
    user.types("txtSpaces", u"20"_s);
    EXPECT_EQ(user.sees("txtSpaces"), u"12");
    EXPECT_TRUE(user.chosen("optTab_1"));
    user.clicks("optTab_0");
    user.presses("txtSpaces", Qt::Key_Down);
    EXPECT_EQ(user.sees("txtSpaces"), u"11");
    EXPECT_TRUE(user.chosen("optTab_1"));
    user.clicks("OKButton");
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->settings(),
              (NumberListSettings{ListStyle::Decimal, 1, false, FollowChar::None, false, 11}));
}

TEST_F(Dialogs, numberStyleShowsWhatTheToolWillDo) {
    const auto dialog = made(NumberListSettings{ListStyle::Decimal, 9, false, FollowChar::Stop, false, 4});
    User user(*dialog);
    EXPECT_EQ(user.sample(),
              u"9.  First list item|10. Second list item|11. Third list item|12. Fourth list item");
    user.types("txtSpaces", u"2"_s);
    EXPECT_TRUE(user.sample().startsWith(u"9.First list item|10Second"));
    user.control<QComboBox>("cmbStyle").setCurrentIndex(5);
    EXPECT_EQ(user.sees("txtSpaces"), u"4");
    EXPECT_FALSE(user.enabled("cmbFollowChar"));
    EXPECT_TRUE(user.sample().startsWith(
        u"9.  First list item|    9.1.First sublist item|    9.2.Second sublist item|10. Second list item"));
    user.clicks("optTab_0");
    EXPECT_TRUE(user.sample().startsWith(u"9.\tFirst list item|\t9.1.\tFirst sublist item"));
    user.control<QComboBox>("cmbStyle").setCurrentIndex(3);
    EXPECT_EQ(user.sees("txtSpaces"), u"4") << "the spaces stay raised";
    EXPECT_TRUE(user.enabled("cmbFollowChar"));
    EXPECT_TRUE(user.sample().startsWith(u"ix.\tFirst list item|x.\t"));
}

TEST_F(Dialogs, indentRemembersItsTexts) {
    QStringList many;
    for (int i = 0; i < IndentSettings::mostRecentTexts; ++i)
        many.append(QString::number(i));
    const std::tuple<QStringList, QString, QStringList> rows[] = {
        {{u"# "_s, u"> "_s}, u">"_s, {u">"_s, u"# "_s}},
        {many, u"new"_s, QStringList(u"new"_s) + many.first(many.size() - 1)},
    };
    for (const auto &[before, typed, after] : rows) {
        const auto dialog = made(IndentSettings{IndentSettings::Choice::Tab, 4, QString(), before});
        User user(*dialog);
        QTest::keyClicks(user.control<QComboBox>("cmbIndentText").lineEdit(), typed);
        EXPECT_TRUE(user.chosen("optTab_2"));
        user.types("txtSpaces", u"8"_s);
        EXPECT_TRUE(user.chosen("optTab_1"));
        user.clicks("optTab_2");
        user.clicks("OKButton");
        EXPECT_EQ(dialog->settings(), (IndentSettings{IndentSettings::Choice::Text, 8, typed, after}));
    }

    const auto dialog = made(IndentSettings{IndentSettings::Choice::Text, 4, u"-"_s, {}});
    User user(*dialog);
    EXPECT_EQ(dialog->focusWidget()->objectName(), u"optTab_2"_s) << "the focus begins on the chosen option";
    user.presses(Qt::Key_Tab);
    QTest::keyClicks(dialog->focusWidget(), u"+"_s);
    EXPECT_EQ(user.control<QComboBox>("cmbIndentText").currentText(), u"+") << "its text comes next";
}

TEST_F(Dialogs, lineNumberingShowsItsRange) {
    const auto dialog = made(LineNumberSettings{});
    User user(*dialog);
    EXPECT_TRUE(user.sample().startsWith(u"1 Lorem ipsum"));
    EXPECT_TRUE(user.sample().contains(u"||2 Tincidunt ut"));
    user.clicks("chkIgnoreBlanks");
    EXPECT_TRUE(user.sample().contains(u"|2 |3 Tincidunt ut"));
    user.types("txtStart", u"9"_s);
    user.presses(Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(user.sample().startsWith(u" 9 Lorem ipsum"));
    user.clicks("chkPad");
    EXPECT_FALSE(user.enabled("optRange_0") || user.enabled("optRange_1"));
    EXPECT_TRUE(user.sample().startsWith(u"9 Lorem ipsum"));
    user.types("txtStep", u"0"_s);
    user.presses("txtStep", Qt::Key_Tab);
    EXPECT_EQ(user.sees("txtStep"), u"1");
    user.types("txtEvery", u"2"_s);
    EXPECT_TRUE(user.sample().startsWith(u"  Lorem ipsum"));
    user.presses(Qt::Key_Return);
    EXPECT_EQ(dialog->settings(), (LineNumberSettings{9, 1, 2, true, false, false, true}));
}

TEST_F(Dialogs, numbersAreShownWholeAndAgreeWithTheSample) {
    const auto dialog = made(LineNumberSettings{-2147483647, 1, 1, true, true, false, false});
    User user(*dialog);
    auto &start = user.control<QLineEdit>("txtStart");
    EXPECT_EQ(start.text(), u"-2147483647");
    EXPECT_GT(start.width(), start.fontMetrics().horizontalAdvance(start.text()));
    EXPECT_EQ(dialog->settings().start, -2147483647) << "nobody has changed it";
    QTest::keyClicks(dialog->focusWidget(), u"7"_s);
    EXPECT_EQ(user.sees("txtStart"), u"7") << "what it showed is typed over";
    user.types("txtStep", u"99999999999"_s);
    EXPECT_EQ(user.sees("txtStep"), u"2147483647");
    user.types("txtStep", u"-3"_s);
    user.pastes("txtEvery", {});
    const QString sample = user.sample();
    EXPECT_TRUE(sample.startsWith(u"7 Lorem") && sample.contains(u"|8 Tincidunt"));
    user.presses(Qt::Key_Return);
    EXPECT_EQ(dialog->settings(), (LineNumberSettings{7, 1, 1, true, true, false, false}));
    EXPECT_EQ(user.sample(), sample);
}

TEST_F(Dialogs, wordWrapStaysOpenForWidthsOutOfRange) {
    const auto dialog = made(WordWrapSettings{});
    User user(*dialog);
    for (const Qt::Key key : {Qt::Key_H, Qt::Key_S, Qt::Key_J})
        user.presses(key, Qt::AltModifier);
    for (const char *width : {"11", "256", "", "99999999999", "-50", "12", "255"}) {
        dialog->show();
        user.pastes("txtWidth", QString::fromLatin1(width));
        user.clicks("OKButton");
        const bool allowed = !dialog->isVisible();
        EXPECT_EQ(allowed, QString::fromLatin1(width).startsWith(u"12") || QByteArray(width) == "255")
            << width;
        EXPECT_EQ(boxes.said(), allowed ? u""_s : u"Page width must lie between 12 and 255 inclusive"_s);
        EXPECT_TRUE(allowed || dialog->focusWidget() == user.control<QLineEdit>("txtWidth").parentWidget());
    }
    EXPECT_EQ(dialog->settings(), (WordWrapSettings{255, true, true, false}));
}

TEST_F(Dialogs, toolsOfLinesShowWhatTheyWillDo) {
    const auto sort = made(SortLinesSettings{});
    User sorting(*sort);
    EXPECT_TRUE(sorting.sample().startsWith(u"Apple, 9, Öland|apple, 9, Ystad|fig 2"_s))
        << "numbers by value";
    auto &languages = sorting.control<QComboBox>("cmbLanguage");
    languages.setCurrentIndex(languages.findText(u"Swedish"_s));
    sorting.types("txtColumn", u"3"_s);
    EXPECT_TRUE(sorting.sample().contains(u"Ystad|fig 2, 100, Åre|Apple, 9, Öland"_s)) << "å and ö after z";
    sorting.control<QComboBox>("cmbOrder").setCurrentIndex(2);
    EXPECT_FALSE(sorting.enabled("cmbLanguage") || sorting.enabled("chkIgnoreCase"));
    EXPECT_EQ(sort->settings().language, u"sv");

    const auto alike = made(DuplicateSettings{});
    User removing(*alike);
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_S, Qt::Key_N})
        removing.presses(key, Qt::AltModifier);
    EXPECT_EQ(removing.sample(), u"4\ttea|3\tmilk|2\t");

    const auto around = made(AroundLinesSettings{});
    User adding(*around);
    adding.types("txtStart", u"-1"_s);
    adding.types("txtAfter", u";"_s);
    EXPECT_EQ(adding.sample(), u"-1. First line;|0. Second line;||1. Third line;");

    const auto separator = made(SeparatorSettings{});
    User joining(*separator);
    EXPECT_EQ(joining.sample(), u"tea|milk||sugar");
    joining.presses(Qt::Key_J, Qt::AltModifier);
    joining.presses(Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(joining.sample(), u"tea, milk, sugar");

    const auto every = made(EveryLineSettings{});
    User counting(*every);
    counting.types("txtEvery", u"3"_s);
    counting.presses(Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(counting.sample(), u"Line 2|Line 3|Line 5|Line 6");
}

TEST_F(Dialogs, columnsThatCantBeReadAreRefused) {
    const auto dialog = made(ColumnSettings{});
    User user(*dialog);
    EXPECT_TRUE(user.sample().startsWith(u"cups, drink|2, tea|"));
    user.types("txtColumns", u"4-3,0"_s);
    EXPECT_TRUE(user.sample().startsWith(u"0 is not a column"));
    EXPECT_EQ(user.control<QLineEdit>("txtColumns").accessibleDescription(), user.sample());
    user.clicks("OKButton");
    EXPECT_TRUE(boxes.said().startsWith(u"0 is not a column"));
    EXPECT_TRUE(dialog->isVisible() && user.control<QLineEdit>("txtColumns").hasFocus());
    user.types("txtColumns", u"4-3"_s);
    user.clicks("chkDrop");
    EXPECT_TRUE(user.sample().startsWith(u"drink, cups|tea, 2|"));
    user.clicks("OKButton");
    EXPECT_EQ(dialog->settings(), (ColumnSettings{u"4-3"_s, true}));
}

TEST_F(Dialogs, patternsThatCantBeLookedForAreRefused) {
    ToolDialogContext context{engine, boxes};
    context.choose = [](const QString &text, const ToolSettings &all) {
        const auto &settings = std::get<PatternLinesSettings>(all);
        const bool bad = settings.pattern == u"(" && settings.mode == PatternMode::RegularExpression;
        return ChosenLines{settings.pattern + text.first(3), bad ? u"not closed"_s : QString()};
    };
    const auto dialog = makeToolDialog(PatternLinesSettings{}, context);
    User user(*dialog);
    user.types("txtPattern", u"("_s);
    EXPECT_EQ(user.sample(), u"(Tea");
    user.control<QComboBox>("cmbMode").setCurrentIndex(2);
    EXPECT_EQ(user.sample(), u"not closed");
    EXPECT_EQ(user.control<QLineEdit>("txtPattern").accessibleDescription(), u"not closed");
    EXPECT_FALSE(user.enabled("chkWholeWords") || user.enabled("chkSpecialChars"));
    user.clicks("OKButton");
    EXPECT_EQ(boxes.said(), u"not closed");
    EXPECT_TRUE(dialog->isVisible());
    user.types("txtPattern", u"x"_s);
    EXPECT_EQ(user.sample(), u"xTea");
    user.clicks("OKButton");
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(Dialogs, patternsHaveTheirModesAndWhatThoseLeaveOut) {
    ToolDialogContext context{engine, boxes};
    context.choose = [](const QString &text, const ToolSettings &settings) {
        return ChosenLines{settingsString(settings) + text.first(1), {}};
    };
    const auto sort = makeToolDialog(PatternSortSettings{}, context);
    User user(*sort);
    user.types("txtPattern", u"x"_s);
    user.clicks("chkWholeWords");
    user.control<QComboBox>("cmbOrder").setCurrentIndex(2);
    EXPECT_TRUE(user.enabled("chkWholeWords") && user.enabled("chkSpecialChars"));
    user.control<QComboBox>("cmbMode").setCurrentIndex(2);
    EXPECT_FALSE(user.enabled("chkWholeWords") || user.enabled("chkSpecialChars"));
    EXPECT_TRUE(user.sample().startsWith(
        u"Pattern=x, Mode=3, MatchCase=0, WholeWords=1, SpecialChars=0, Order=2, Descending=0"_s));
    user.clicks("OKButton");
    EXPECT_EQ(sort->settings().order, SortLinesSettings::Order::Number);
}

TEST_F(Dialogs, settingsStringsAreEditedForActions) {
    const auto edit = [](auto &dialog, const char *details, const char *button) {
        QTimer::singleShot(0, &dialog, [&dialog, button] { User(dialog).clicks(button); });
        QString text = QString::fromLatin1(details);
        const bool done = dialog.getSettings(text);
        EXPECT_EQ(done, QByteArrayView(button) == "OKButton");
        return text;
    };
    const NumberListSettings lastUsed{ListStyle::LowerRoman, 7, true, FollowChar::Bracket, true, 9};
    const auto numbers = made(lastUsed);
    EXPECT_EQ(edit(*numbers, "Style=1, Spaces=99, Colour=red, Tab=maybe", "OKButton"),
              u"Style=1, Start=7, Renumber=1, FollowChar=2, Tab=True, Spaces=12");
    const auto wrap = made(WordWrapSettings{});
    EXPECT_EQ(edit(*wrap, "Width=33, Hanging=1, Tab=False", "CancelButton"),
              u"Width=33, Hanging=1, Tab=False");
}

TEST_F(Dialogs, textsThatNoActionCanHoldAreRefused) {
    const auto edit = [this](auto &dialog, const char *list, const char *option) {
        QTimer::singleShot(0, &dialog, [this, &dialog, list, option] {
            User user(dialog);
            user.clicks("OKButton");
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_EQ(boxes.said(), u"A comma followed by a space can't be stored in the settings "
                                    "of an Action.\r\n\r\nPlease enter another text"_s);
            EXPECT_EQ(dialog.focusWidget(), &user.control<QComboBox>(list));
            if (option != nullptr)
                user.clicks(option);
            else
                QTest::keyClicks(dialog.focusWidget(), u"a,"_s); // all of it was selected
            user.clicks("OKButton");
        });
        QString details;
        EXPECT_TRUE(dialog.getSettings(details));
        return details;
    };
    const auto bullet = made(BulletSettings{u"a, b"_s, true, 2});
    EXPECT_EQ(edit(*bullet, "cmbBulletChar", nullptr), u"Bullet=a,, Tab=True, Spaces=2");
    const IndentSettings lastUsed{IndentSettings::Choice::Text, 4, u", RadioButton=1"_s, {}};
    const auto typed = made(lastUsed);
    EXPECT_EQ(edit(*typed, "cmbIndentText", nullptr), u"Spaces=4, Text=a,, RadioButton=2");
    const auto unused = made(lastUsed);
    EXPECT_EQ(edit(*unused, "cmbIndentText", "optTab_0"), u"Spaces=4, Text=, RadioButton=0");
    const auto atOnce = made(lastUsed); // the tool itself takes any text
    User(*atOnce).presses(Qt::Key_Return);
    EXPECT_EQ(atOnce->settings().text, lastUsed.text);
}

TEST_F(Dialogs, showAndGiveBackEveryField) {
    forEachToolSettings([this](const auto &defaults) {
        using Settings = std::remove_cvref_t<decltype(defaults)>;
        const auto other = otherSettings<Settings>();
        const auto dialog = made(other);
        SCOPED_TRACE(dialog->objectName().toStdString());
        EXPECT_EQ(dialog->settings(), other);
        dialog->setSettings(defaults);
        EXPECT_EQ(dialog->settings(), defaults);

        const auto clickIn = [](const char *button) {
            QTimer::singleShot(0, qApp, [button] {
                click(*qobject_cast<QDialog *>(QApplication::activeModalWidget()), button);
            });
        };
        ToolSettings asked = other;
        clickIn("CancelButton");
        EXPECT_FALSE(askInToolDialog(asked, {engine, boxes}));
        clickIn("OKButton");
        EXPECT_TRUE(askInToolDialog(asked, {engine, boxes}));
        EXPECT_EQ(settingsString(asked), settingsString(other));
        clickIn("OKButton");
        EXPECT_EQ(editInToolDialog(defaults, settingsString(other), {engine, boxes}), settingsString(other));
    });
}

TEST_F(Dialogs, samplesFollowTheSettingsOfWriting) {
    const auto signs = made(TypographySettings{});
    User printer(*signs);
    EXPECT_TRUE(printer.sample().endsWith(u"|“I don’t” – 1990–1995, 5 km, 6′2″…"));
    printer.control<QComboBox>("cmbLanguage").setCurrentIndex(3);
    EXPECT_TRUE(printer.sample().endsWith(u"« L’été » – 10\u202F000 km\u202F? Voir p. 7…"));
    printer.presses(Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(printer.sample().endsWith(u"« L’été » – 10 000 km ? Voir p. 7…"));

    const auto wrap = made(ParagraphWrapSettings{});
    User writer(*wrap);
    writer.types("txtWidth", u"3"_s);
    EXPECT_EQ(wrap->settings().width, ParagraphWrapSettings::narrowest);
    writer.types("txtWidth", u"40"_s);
    EXPECT_TRUE(
        writer.sample().startsWith(u"> An answer from a letter, quoted with|> its marks as they came,|> in"));
    writer.clicks("chkFill");
    EXPECT_TRUE(writer.sample().startsWith(
        u"> An answer from a letter, quoted with|> its marks as they came, in lines that|"));
}

TEST_F(Dialogs, statisticsShowBothColumns) {
    frmStats form(boxes, engine.statistics(u"a b. c d?\r\n", u"a b."));
    User user(form);
    auto &list = user.control<QTreeWidget>("lvwStats");
    EXPECT_EQ(list.topLevelItem(2)->text(1), u"22");
    EXPECT_EQ(list.topLevelItem(2)->text(2), u"8");
    user.clicks("cmdHelp");
    EXPECT_EQ(boxes.said(), u"Help is not implemented yet");
    user.presses(Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
}

} // namespace
