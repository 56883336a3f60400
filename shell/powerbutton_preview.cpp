// SPDX-License-Identifier: MIT
#include "shell/powerbutton_preview.h"

#include "base/failure.h"
#include "platform/headless/ConsoleBoxes.h"
#include "preferences/settings_keys.h"
#include "preferences/settings_store.h"
#include "shell/headless/HeadlessSession.h"

#include <QStringList>
#include <algorithm>
#include <utility>

namespace tolvo {

namespace {

/// Answers for the user with a cancel, and remembers that somebody asked.
class TrialWindows final : public HeadlessWindows {
  public:
    TrialWindows(SearchRequest search, std::function<bool()> cancelled)
        : m_search(std::move(search)), m_cancelled(std::move(cancelled)) {}

    /// Whether anybody has asked since the last call.
    bool takeAsked() { return std::exchange(m_asked, false); }

    bool interrupted() override { return m_cancelled && m_cancelled(); }
    bool askToolSettings(ToolSettings &) override { return asks(false); }
    void showStatistics(const TextStatistics &) override { m_asked = true; }
    void editPowerButton(int) override { m_asked = true; }
    int GetLangID(int, bool) override { return asks(languageCancelled); }
    bool CheckSpelling(ProofingHost &, QString &, int, bool) override { return asks(false); }
    SearchRequest request() override { return m_search; }
    void showDialog(bool) override { m_asked = true; }
    void showCopyMatches() override { m_asked = true; }

  private:
    template <class Answer>
    Answer asks(Answer answer) {
        m_asked = true;
        return answer;
    }

    SearchRequest m_search;
    std::function<bool()> m_cancelled;
    bool m_asked = false;
};

/// The texts of boxes from one on.
QString textsFrom(const std::vector<Box> &boxes, std::size_t first) {
    QStringList texts;
    for (std::size_t i = first; i < boxes.size(); ++i)
        texts += boxes[i].text;
    return texts.join(u'\n');
}

class Trial {
  public:
    Trial(const PowerButtonTrial &trial, const std::function<bool()> &cancelled)
        : m_trial(trial), m_cancelled(cancelled), m_extensions(trial.extensions),
          m_windows(trial.lastSearch, cancelled),
          m_headless(m_store, *trial.catalogue, m_extensions, m_boxes, m_windows, {}, trial.capacity),
          m_session(m_headless.session) {
        m_session.oTextMethods.setTopLevelDomains(trial.topLevelDomains);
        m_headless.clipboard.text = trial.clipboard;
        for (const ToolSettings &settings : trial.lastSettings)
            m_session.toolSettings().get(settings) = settings;
        set(m_store, settingKeys.matchCopy.form, trial.lastCopy.form);
        set(m_store, settingKeys.matchCopy.inPlace, trial.lastCopy.inPlace);
        for (int index = 0; index < trial.buttons.size(); ++index) {
            // The session reads the store again where a step would open the editor.
            m_headless.oPBMethods.SavePBSettings(trial.buttons.at(index), index + 1);
            m_headless.oPowerButtons.Add(std::make_shared<CPowerButton>(trial.buttons.at(index)), index + 1);
        }
        restore(m_session.txtCurrent(), trial.text);
        m_session.beginWithText();
        restore(m_session.txtCurrent(), trial.text);
    }

    QList<StepResult> run() {
        QList<std::shared_ptr<CAction>> actions;
        for (const CAction &step : m_trial.steps)
            actions += std::make_shared<CAction>(step);
        actions += std::make_shared<CAction>(); // runs nothing; what comes before it has ended then
        m_session.runActions(actions, [this] { nextStep(); });
        if (m_results.size() <= m_trial.steps.size())
            endStep(); // the one that has ended the run
        else
            addLossOfText();
        const TextState end = textState(m_session.txtCurrent());
        while (m_results.size() < m_trial.steps.size())
            m_results += {.before = end, .after = end};
        m_results.resize(m_trial.steps.size());
        return m_results;
    }

  private:
    void nextStep() {
        if (m_cancelled && m_cancelled())
            throw Failure(failureNumber::invalidArgument, QStringLiteral("The trial was cancelled"));
        if (!m_results.isEmpty())
            endStep();
        m_results += {.before = textState(m_session.txtCurrent())};
        m_boxesBefore = m_boxes.shown.size();
        m_session.setStatus({});
    }

    void endStep() {
        if (m_results.isEmpty())
            return;
        StepResult &result = m_results.last();
        result.after = textState(m_session.txtCurrent());
        result.says = textsFrom(m_boxes.shown, m_boxesBefore);
        if (result.says.isEmpty())
            result.says = m_session.labStatus();
        const auto isQuestion = [](const Box &box) { return box.buttons == BoxButtons::YesNo; };
        const bool asked = m_windows.takeAsked() ||
                           std::any_of(m_boxes.shown.begin() + static_cast<std::ptrdiff_t>(m_boxesBefore),
                                       m_boxes.shown.end(), isQuestion);
        const CAction &step = m_trial.steps.at(m_results.size() - 1);
        if (!step.Tool())
            result.kind = StepResult::Kind::Blank;
        else if (step.switchedOff())
            result.kind = StepResult::Kind::SwitchedOff;
        else
            result.kind = asked ? StepResult::Kind::Asks : StepResult::Kind::Ran;
    }

    /// A run says once at its end that text was cut; here the step that has filled the box says so.
    void addLossOfText() {
        const QString said = textsFrom(m_boxes.shown, m_boxesBefore);
        const auto filled =
            std::find_if(m_results.begin(), m_results.end(), [this](const StepResult &result) {
                return result.after.text.size() >= m_trial.capacity;
            });
        if (!said.isEmpty() && filled != m_results.end())
            filled->says = said;
    }

    const PowerButtonTrial &m_trial;
    const std::function<bool()> &m_cancelled;
    SettingsStore m_store{QStringLiteral(":memory:")};
    FileExtensions m_extensions;
    RecordingBoxes m_boxes;
    TrialWindows m_windows;
    HeadlessSession m_headless;
    frmMain &m_session;
    QList<StepResult> m_results; ///< of the steps so far, the one that is at work included
    std::size_t m_boxesBefore = 0;
};

} // namespace

QList<StepResult> tryPowerButton(const PowerButtonTrial &trial, const std::function<bool()> &cancelled) {
    return Trial(trial, cancelled).run();
}

} // namespace tolvo
