// SPDX-License-Identifier: MIT
#include "companions/tips.h"

#include "preferences/options.h"

namespace tolvo {

namespace {

constexpr Tip collection[] = {
    {u"In by the clipboard, out by the clipboard",
     u"Copy text in any program, start Tolvo, run a few tools, and choose Copy and Close. Then paste the "
     u"clean "
     u"text where you need it. Nothing has to be opened or saved."},
    {u"All of it, or just a part",
     u"A tool works on the selected text. With nothing selected it works on the whole text. Press Ctrl-A to "
     u"select everything."},
    {u"Whole lines come by themselves", u"Tools that sort, number, indent or quote work on whole lines. You "
                                        u"need not select exactly: a selection "
                                        u"that touches a line takes in all of it."},
    {u"Skip the dialog",
     u"Click a tool with the right mouse button, and it runs at once with the settings you used last."},
    {u"Once more, please",
     u"Ctrl-R repeats the last tool or PowerButton with the same settings. Select the next part and press it "
     u"again."},
    {u"Nothing is lost",
     u"Ctrl-Z takes back what a tool has done, step by step, and Ctrl-Y brings it back. Try "
     u"a tool, and undo it if you don't like the result."},
    {u"Close from the keyboard", u"Alt-D, or Ctrl-Shift-C, copies the whole text to the clipboard and closes "
                                 u"Tolvo. Alt-Q closes it and leaves the clipboard alone."},
    {u"Fetch the clipboard again",
     u"Copied something else meanwhile? Refresh takes in the text that is on the clipboard now."},
    {u"Capitals as you walk", u"Put the caret before a letter and press Ctrl-U to make it a capital, Ctrl-L "
                              u"to make it small, Ctrl-S to "
                              u"swap it. The caret moves on, so you can hold the key."},
    {u"Two letters the wrong way round", u"Put the caret between them and press Ctrl-T."},
    {u"Titles that look right",
     u"Title Case gives the important words a capital and keeps small words such as \u201Cof\u201D and "
     u"\u201Cthe\u201D small. Abbreviations, file names and web addresses keep their form."},
    {u"Shouting? Whisper first",
     u"Is a text all in capitals? Run lower case, then Sentence case: every sentence begins with a capital "
     u"again."},
    {u"Broken lines from an e-mail or a PDF",
     u"Join paragraphs turns each paragraph that was broken into short lines into one long line. Blank lines "
     u"keep the paragraphs apart."},
    {u"Away with the quote marks",
     u"Clean up e-mail takes the > signs off the beginning of quoted lines. Join paragraphs then mends the "
     u"lines themselves."},
    {u"Plain characters for plain places", u"Plain characters turns curly quotation marks, long dashes and "
                                           u"the like into characters that every form "
                                           u"and every program takes. Curly quotes goes the other way."},
    {u"Spaces you can't see", u"Trim line ends removes spaces and tabs at the end of every line, and Single "
                              u"spaces leaves one space where there are several. One favourite does both."},
    {u"Read a web address", u"Full of %20 and %3F? Decode web address shows what it says. Decode HTML does "
                            u"the same for codes such as &amp; in web pages."},
    {u"Move lines up and down",
     u"Alt-Up and Alt-Down move the line with the caret, or all selected lines. A short list is in order "
     u"faster than by cutting and pasting."},
    {u"Sort by number",
     u"Sort A to Z puts 10 before 9. Sort by number goes by the numbers in the lines and knows better."},
    {u"Keywords in order",
     u"Sort keywords puts words that are separated by commas in alphabetical order, as in a list of tags."},
    {u"Lists in many styles", u"Numbered list counts 1, 2, 3 as well as a, b, c or Roman numerals, and can "
                              u"begin with any number. It can renumber a list that has numbers already."},
    {u"Off with the numbers",
     u"Remove bullets, Remove list numbers and Remove line numbers take the marks off "
     u"again, also those that another program has written."},
    {u"Wrap for show, or for good", u"Alt-W wraps long lines in the window only. The tool Word wrap breaks "
                                    u"them for good, at a width of your "
                                    u"choice, on request with a straight right edge."},
    {u"Find the next one",
     u"Ctrl-F searches, Ctrl-H replaces, and F3 finds the next place after you have closed "
     u"the search window."},
    {u"Search for patterns", u"In a wildcard search ? stands for any character and * for any number of them. "
                             u"What a wildcard found can "
                             u"be used again in the replacement. Regular expressions go further still."},
    {u"Where does this bracket end?",
     u"Put the caret beside a bracket and press Ctrl-]. Tolvo selects its partner, however far away it is."},
    {u"What is this character?",
     u"Put the caret before it and press Ctrl-/ to see its code and the place in the "
     u"text, with line and column."},
    {u"How long is it?",
     u"Statistics counts characters, words, sentences and lines. Select a part first, and "
     u"you see the numbers of the part beside those of the whole."},
    {u"Check the small things",
     u"Punctuation repairs missing and doubled spaces around commas, full stops and brackets, and shows what "
     u"else looks wrong."},
    {u"Teach it your words", u"In a spelling check choose Add to dictionary for names and terms of your own. "
                             u"They count as correct from "
                             u"then on."},
    {u"Your own tools: PowerButtons", u"A PowerButton runs several tools one after another. Click one of the "
                                      u"eight buttons with the right mouse "
                                      u"button to put your own together."},
    {u"PowerButtons by key",
     u"Alt-F1 to Alt-F8 run the eight PowerButtons. With Shift as well they open the editor."},
    {u"Let a PowerButton ask",
     u"For each step of a PowerButton you choose: settings of its own, the settings you used last, or the "
     u"dialog each time it runs."},
    {u"PowerButtons inside PowerButtons",
     u"A step can be another PowerButton. Build a small one for each chore, and one that runs them all."},
    {u"Only what stands between the tags",
     u"The step Select between tags of a PowerButton looks for text between \\[ and \\] and selects it. The "
     u"steps after it work on that part only."},
    {u"File names stay as they are", u"A word that ends in a known file extension keeps its capitals. In the "
                                     u"Options, under Extensions, you can "
                                     u"add those that Tolvo doesn't know."},
    {u"Take your settings with you",
     u"Export in the Options writes all settings and PowerButtons into one file. Import reads it on another "
     u"machine; you can also pass on PowerButtons alone."},
    {u"As many windows as you like", u"Start Tolvo again while it is running: each window has a text of its "
                                     u"own, and all share your settings."},
};

} // namespace

std::span<const Tip> tips() {
    return collection;
}

TipWalk::TipWalk(SettingsStore &store) : m_store(store) {
    const double last = get(store, settingKeys.advisor.lastTip);
    const bool known = last >= 1 && last <= static_cast<double>(tips().size());
    goTo(known ? static_cast<int>(last) : 0);
}

void TipWalk::goTo(int place) {
    const int count = static_cast<int>(tips().size());
    m_place = (place + count) % count;
    set(m_store, settingKeys.advisor.lastTip, m_place + 1);
}

bool TipWalk::showAtStartup() const {
    return loadOptions(m_store).showTips;
}

void TipWalk::setShowAtStartup(bool show) {
    set(m_store, settingKeys.preferences.showTips, show);
}

} // namespace tolvo
