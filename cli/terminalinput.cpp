#include "terminalinput.h"

#include "output.h"

#include <csignal>
#include <cstdio>
#include <iterator>
#include <optional>

#include <termios.h>
#include <unistd.h>

namespace {

// A loop of redirects has to end without anybody there, too.
constexpr int MaxRedirects = 20;
constexpr int MaxPasswords = 3;

bool isSameServer(const QUrl &one, const QUrl &other)
{
    const int port = one.scheme() == QLatin1String("https") ? 443 : 80;
    return one.scheme() == other.scheme() && one.host() == other.host()
        && one.port(port) == other.port(port);
}

bool isYes(const QString &answer)
{
    return answer.trimmed().startsWith(u'y', Qt::CaseInsensitive);
}

constexpr int endingSignals[] = {SIGINT, SIGQUIT, SIGTERM, SIGHUP};
termios shownTyping; // for the handler of these signals

// Runs in a signal handler.
void showTypingAndEnd(int signal)
{
    tcsetattr(STDIN_FILENO, TCSANOW, &shownTyping);
    // Waits for the handler's end, then ends the program as the signal does by default.
    raise(signal);
}

// Typing is not shown as long as this lives, and the program.
class HiddenTyping
{
public:
    HiddenTyping()
    {
        tcgetattr(STDIN_FILENO, &shownTyping);
        struct sigaction action = {};
        action.sa_handler = &showTypingAndEnd;
        action.sa_flags = int(SA_RESETHAND);
        sigfillset(&action.sa_mask);
        for (int i = 0; i < Signals; ++i) {
            sigaction(endingSignals[i], nullptr, &m_before[i]);
            // A signal that is ignored, as under nohup, stays so.
            if (m_before[i].sa_handler == SIG_DFL) {
                sigaction(endingSignals[i], &action, nullptr);
            }
        }
        termios hidden = shownTyping;
        hidden.c_lflag &= ~tcflag_t(ECHO);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    }
    ~HiddenTyping()
    {
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &shownTyping);
        for (int i = 0; i < Signals; ++i) {
            sigaction(endingSignals[i], &m_before[i], nullptr);
        }
    }
    Q_DISABLE_COPY(HiddenTyping)

private:
    static constexpr int Signals = int(std::size(endingSignals));
    struct sigaction m_before[Signals];
};

QString readLine()
{
    QByteArray line;
    for (int c = std::getchar(); c != EOF && c != '\n'; c = std::getchar()) {
        line.append(char(c));
    }
    return QString::fromLocal8Bit(line);
}

} // namespace

bool canAsk()
{
    return isatty(STDIN_FILENO) && isatty(STDERR_FILENO);
}

QString askLine(const QString &prompt, bool isSecret)
{
    if (!canAsk()) {
        return QString();
    }
    std::optional<HiddenTyping> hidden;
    if (isSecret) {
        hidden.emplace(); // forgets what was typed before the question
    }
    showProgress(prompt);
    if (!isSecret) {
        return readLine();
    }
    const QString line = readLine();
    std::fputc('\n', stderr);
    return line;
}

TerminalInput::TerminalInput(const Answers &answers, MRVDownloadUrl *download, const QUrl &url)
    : m_answers(answers)
    , m_download(download)
    , m_first(url)
{
}

bool TerminalInput::refuse(const QString &reason)
{
    m_reason = reason;
    return false;
}

bool TerminalInput::authenticate(const QString &realm, const QUrl &url, QString *user,
                                 QString *password)
{
    const int count = ++m_passwords;
    // A password is for the server that it was given for, and not for where that one sends us.
    const bool isOurs = isSameServer(url, m_first);
    if (isOurs && !m_answers.user.isEmpty()) {
        *user = m_answers.user;
    }
    if (isOurs && !m_answers.password.isNull()) {
        *password = m_answers.password;
        return count == 1 || refuse(QStringLiteral("the user name or the password is wrong"));
    }
    if (!canAsk() || count > MaxPasswords) {
        return refuse(QStringLiteral("'%1' asks for a password").arg(realm));
    }
    if (user->isEmpty()) {
        *user = askLine(QStringLiteral("User name for '%1' at %2: ").arg(realm, url.host()));
    }
    *password = askLine(
        QStringLiteral("Password of %1 for '%2' at %3: ").arg(*user, realm, url.host()), true);
    return true;
}

bool TerminalInput::redirectTo(const QUrl &url)
{
    const QString target = url.toDisplayString();
    const bool isEndless = m_redirects.size() == MaxRedirects;
    if (!isEndless
        && (m_answers.follow
            || isYes(askLine(QStringLiteral("Redirect to %1 ? [y/N] ").arg(target))))) {
        m_redirects.append(target);
        m_passwords = 0;
        return true;
    }
    refuse(isEndless ? QStringLiteral("there are more than %1 redirects").arg(MaxRedirects)
                     : QStringLiteral("it redirects to %1; --follow goes there").arg(target));
    // Otherwise the page that tells of the redirect would be the result.
    m_download->cancelDownload();
    return false;
}

bool TerminalInput::ignoreSslErrors(const QStringList &errors)
{
    return m_answers.insecure
        || refuse(errors.join(QLatin1String("; ")) + QLatin1String("; --insecure goes on"));
}
