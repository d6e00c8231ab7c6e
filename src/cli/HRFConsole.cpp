#include "cli/HRFConsole.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// The streams stay as unusable as they are.
void HRFConsole::occupyClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(stream, F_GETFD) < 0)
            ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

HRFConsole::HRFConsole(bool isQuiet) : m_showsProgress(!isQuiet && ::isatty(STDERR_FILENO) == 1) { }

void HRFConsole::print(const QByteArray &text)
{
    if (m_hasOutputFailed)
        return;
    clearProgress();
    const auto size = std::size_t(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size)
        noteFailedOutput();
}

/// Whoever closes the pipe knows that.
void HRFConsole::noteFailedOutput()
{
    m_hasOutputFailed = true;
    if (errno != EPIPE)
        report(u"Standard output cannot be written"_s);
}

void HRFConsole::report(const QString &text)
{
    clearProgress();
    std::fflush(stdout);
    const QByteArray line = (u"lirra-cli: "_s + printable(text)).toUtf8() + '\n';
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stderr);
}

void HRFConsole::showProgress(std::size_t finished, std::size_t total)
{
    constexpr std::size_t worthShowing = 2;
    if (!m_showsProgress || total < worthShowing)
        return;
    std::fprintf(stderr, "\r%zu of %zu files", finished, total);
    m_isProgressShown = true;
}

void HRFConsole::clearProgress()
{
    constexpr const char *eraseLine = "\r\x1B[K";
    if (m_isProgressShown)
        std::fputs(eraseLine, stderr);
    m_isProgressShown = false;
}

void HRFConsole::finish()
{
    clearProgress();
    if (!m_hasOutputFailed && std::fflush(stdout) != 0)
        noteFailedOutput();
}

bool HRFConsole::isInteractive() const
{
    return ::isatty(STDIN_FILENO) == 1 && ::isatty(STDERR_FILENO) == 1;
}

QString HRFConsole::ask(const QString &question)
{
    clearProgress();
    const QByteArray text = printable(question).toUtf8();
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stderr);
    // Not through a buffered stream, which goes on reading after a signal.
    QByteArray line;
    char character = '\0';
    while (::read(STDIN_FILENO, &character, 1) == 1 && character != '\n')
        line += character;
    return QString::fromUtf8(line).trimmed().toLower();
}

QString HRFConsole::printable(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control && character != u'\t')
            result += u"\\x%1"_s.arg(character.unicode(), 2, 16, QChar(u'0'));
        else
            result += character;
    }
    return result;
}
