#include "cli/HRFTerminalInteraction.h"

#include "cli/HRFConsole.h"
#include "kit/HRFInterruption.h"
#include "operations/HRFProgress.h"
#include "tags/HRFTagEngine.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Buttons = std::vector<HRFAlertButton>;

const QString quitLetter = u"q"_s;

/// What is typed behind a letter to check the box of a question.
QString suppressionWord(const HRFAlert &alert)
{
    return alert.suppressionTitle == u"Apply to All" ? u"all"_s : u"always"_s;
}

/// "ask" needs somebody who answers.
HRFErrorAnswer effectiveAnswer(HRFErrorAnswer answer, const HRFConsole &console)
{
    const bool cannotAsk = answer == HRFErrorAnswer::Ask && !console.isInteractive();
    return cannotAsk ? HRFErrorAnswer::Continue : answer;
}

/// The button that is meant by an answer, or else the next more careful one.
std::size_t buttonFor(HRFErrorAnswer answer, const Buttons &buttons)
{
    constexpr std::array roles{HRFAnswerRole::Fix, HRFAnswerRole::Continue, HRFAnswerRole::Cancel};
    const std::size_t first = answer == HRFErrorAnswer::Fix ? 0
        : answer == HRFErrorAnswer::Continue                ? 1
                                                            : 2;
    for (std::size_t i = first; i < roles.size(); ++i) {
        const auto found = std::ranges::find(buttons, roles[i], &HRFAlertButton::role);
        if (found != buttons.end())
            return std::size_t(found - buttons.begin());
    }
    return buttons.size() - 1;
}

/// What can be answered: a button under one of its titles.
struct Choice
{
    QString title;
    std::size_t button = 0;
    bool isAlternate = false;
};

std::vector<Choice> choicesOf(const Buttons &buttons)
{
    std::vector<Choice> choices;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        choices.push_back({buttons[i].title.toLower(), i});
        if (!buttons[i].alternateTitle.isEmpty())
            choices.push_back({buttons[i].alternateTitle.toLower(), i, true});
    }
    return choices;
}

/// A letter of each title, all different.
QString lettersFor(const std::vector<Choice> &choices)
{
    QString letters;
    for (const auto &[title, button, isAlternate] : choices) {
        const auto isFree = [&](QChar letter) {
            return letter.isLetter() && letter != quitLetter.front() && !letters.contains(letter);
        };
        const auto found = std::ranges::find_if(title, isFree);
        letters += found == title.end() ? QChar(char16_t(u'0' + letters.size())) : *found;
    }
    return letters;
}

QString questionText(const HRFAlert &alert, const std::vector<Choice> &choices,
                     const QString &letters)
{
    QStringList titles;
    for (qsizetype i = 0; i < letters.size(); ++i) {
        QString title = choices[std::size_t(i)].title;
        const qsizetype place = title.indexOf(letters[i]);
        const QString marked = u"[%1]"_s.arg(letters[i]);
        titles += place < 0 ? marked + title : title.replace(place, 1, marked);
    }
    titles += u"[q]uit"_s;
    const QString suppression = alert.suppressionTitle.isEmpty()
        ? QString()
        : u" (“%1 %2”: %3)"_s.arg(letters.front(), suppressionWord(alert), alert.suppressionTitle);
    return titles.join(u", "_s) + suppression + u"? "_s;
}

/// What was typed, as an answer; nothing when it is none.
std::optional<HRFAlertAnswer> parseAnswer(const QString &typed, const HRFAlert &alert,
                                          const std::vector<Choice> &choices,
                                          const QString &letters)
{
    const QStringList words = typed.split(u' ', Qt::SkipEmptyParts);
    const bool isSuppressed = words.size() == 2 && words[1] == suppressionWord(alert);
    const qsizetype place = words[0].size() == 1 ? letters.indexOf(words[0]) : -1;
    if (place < 0 || words.size() > (isSuppressed ? 2 : 1)
        || (isSuppressed && alert.suppressionTitle.isEmpty()))
        return {};
    const Choice &choice = choices[std::size_t(place)];
    return HRFAlertAnswer{
        .button = choice.button, .isSuppressed = isSuppressed, .isAlternate = choice.isAlternate};
}

/// The import ends with such an error when files were unreadable. They were named one by one.
bool isSummaryOfNamedFiles(const HRFError &error)
{
    return error.domain == QLatin1StringView(HRFTagEngineErrorDomain)
        && error.code == HRFTagEngineErrorCode::unreadable && error.path.isEmpty();
}

class Display : public HRFProgressDisplay
{
public:
    explicit Display(std::weak_ptr<HRFProgress> &shown) : m_shown(shown) { }
    ~Display() override { m_shown.reset(); }

private:
    std::weak_ptr<HRFProgress> &m_shown;
};

} // namespace

HRFTerminalInteraction::HRFTerminalInteraction(HRFConsole &console, HRFErrorAnswer onError,
                                               FailureNamer nameFailure)
    : m_console(console)
    , m_onError(effectiveAnswer(onError, console))
    , m_nameFailure(std::move(nameFailure))
{
    setCurrent(this);
}

HRFTerminalInteraction::~HRFTerminalInteraction()
{
    setCurrent(nullptr);
}

HRFAlertAnswer HRFTerminalInteraction::runAlert(const HRFAlert &alert)
{
    QStringList texts{alert.message, alert.informativeText};
    texts.removeAll(QString());
    if (alert.isQuestion)
        return runQuestion(alert, texts.join(u' ').replace(u'\n', u", "_s));
    tell(texts.join(u": "_s));
    if (asks())
        return ask(alert);
    if (m_onError == HRFErrorAnswer::Cancel)
        cancelShownWork();
    return {.button = buttonFor(m_onError, alert.buttons)};
}

/// What to do about errors has nothing to do with it.
HRFAlertAnswer HRFTerminalInteraction::runQuestion(const HRFAlert &alert, const QString &text)
{
    m_console.report(text);
    if (m_console.isInteractive())
        return ask(alert);
    return {.button = buttonFor(HRFErrorAnswer::Cancel, alert.buttons)};
}

bool HRFTerminalInteraction::presentError(const HRFError &error, HRFInteractionOwner /*owner*/)
{
    const QString file = error.path.isEmpty() ? QString() : error.path + u": "_s;
    if (!isSummaryOfNamedFiles(error))
        tell(file + error.fullText());
    return false;
}

/// A file is named once; but who sits at the terminal is told what came of an answer.
void HRFTerminalInteraction::tell(const QString &text)
{
    const Named named = m_nameFailure();
    if (named == Named::NoFile || (named == Named::Before && asks()))
        m_console.report(text);
}

HRFAlertAnswer HRFTerminalInteraction::ask(const HRFAlert &alert)
{
    const std::vector<Choice> choices = choicesOf(alert.buttons);
    const QString letters = lettersFor(choices);
    const QString question = questionText(alert, choices, letters);
    while (!HRFInterruption::isRequested()) {
        const QString typed = m_console.ask(question);
        if (typed.isEmpty() || typed == quitLetter)
            break;
        if (const auto answer = parseAnswer(typed, alert, choices, letters))
            return *answer;
    }
    cancelShownWork();
    return {.button = buttonFor(HRFErrorAnswer::Cancel, alert.buttons)};
}

std::unique_ptr<HRFProgressDisplay>
HRFTerminalInteraction::showProgress(const std::shared_ptr<HRFProgress> &progress,
                                     const HRFProgressAppearance & /*appearance*/)
{
    m_shownProgress = progress;
    return std::make_unique<Display>(m_shownProgress);
}

void HRFTerminalInteraction::updateProgress()
{
    if (const auto progress = m_shownProgress.lock())
        m_console.showProgress(std::size_t(progress->completedUnitCount()),
                               std::size_t(progress->totalUnitCount()));
}

void HRFTerminalInteraction::cancelShownWork()
{
    if (const auto progress = m_shownProgress.lock())
        progress->cancel();
}
