#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>

/// Standard output and standard error of lirra-cli.
///
/// Texts of files may hold anything; control characters in them are made visible, so that a tag
/// cannot steer the terminal.
class HRFConsole
{
public:
    /// To be called before any file is opened: none shall take the place of a standard stream that
    /// is closed.
    static void occupyClosedStreams();

    explicit HRFConsole(bool isQuiet);

    /// Writes to standard output as it stands. After a failure (a closed pipe, a full disk) nothing
    /// more is written; see hasOutputFailed.
    void print(const QByteArray &text);
    /// Reports on standard error: "lirra-cli: text".
    void report(const QString &text);
    /// Shows how far a long work is, on a terminal only.
    void showProgress(std::size_t finished, std::size_t total);
    /// Ends the progress line and writes out what is buffered.
    void finish();

    /// Whether questions can be asked and answered.
    bool isInteractive() const;
    /// Asks on the terminal; answers the typed line in lower case.
    QString ask(const QString &question);

    bool hasOutputFailed() const { return m_hasOutputFailed; }

    /// The text with control characters as escapes (\x1b).
    static QString printable(const QString &text);

private:
    void clearProgress();
    void noteFailedOutput();

    bool m_showsProgress;
    bool m_isProgressShown = false;
    bool m_hasOutputFailed = false;
};
