#pragma once

#include "support/testbackend.h"
#include "ui/desktopshell.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <functional>
#include <memory>

// The real window over a real backend, offscreen, for one test executable: the shell with its own
// settings and secrets, the QML engine with Main.qml, and screenshots of what it shows.
class DesktopWindow
{
public:
    // `adjust` changes the shell's options before it is made (a clock, a backend that fails first).
    explicit DesktopWindow(const TestBackend &backend, std::function<void(DesktopShell::Options &)> adjust = {});
    ~DesktopWindow();

    // Loads the window and starts the shell; false (with a warning) when the window did not load.
    bool open();
    // A new account through the window's own sign-up, with its onboarding answers; waits until the
    // window shows it. False when it did not get there.
    bool signUp(const QString &email, const QString &name = QStringLiteral("Ada Lovelace"),
                const QString &currency = QStringLiteral("CHF"), const QString &rate = QStringLiteral("95,50"),
                const QString &timeZone = QStringLiteral("Europe/Zurich"));

    [[nodiscard]] DesktopShell &shell() const { return *m_shell; }
    [[nodiscard]] Workspace *workspace() const { return m_shell->workspace(); }
    [[nodiscard]] AppStore *store() const { return m_shell->store(); }
    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    // An item by object name, delegates of lists included.
    [[nodiscard]] QQuickItem *item(const QString &name) const;
    // A screen beside the task lists, by its link id ("" for the tasks).
    void showPage(const QString &page) const;

    // Saves the window (or `other`) in English and Japanese, light and dark, to the build folder's
    // screenshots, for a person to look at; false when a picture could not be saved.
    bool shoot(const QString &name, QQuickWindow *other = nullptr) const;

    static constexpr const char *password = "correct horse battery staple";

private:
    QTemporaryDir m_dir;
    std::unique_ptr<DesktopShell> m_shell;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
};

// main() of a window test: the software renderer, a throw-away configuration folder, the
// application's names and font, English to begin with; `run` makes the test object and runs it.
int runDesktopTest(int argc, char *argv[], const std::function<int(int, char **)> &run);

#define MORVANE_DESKTOP_TEST_MAIN(TestClass)                                                                           \
    int main(int argc, char *argv[])                                                                                   \
    {                                                                                                                  \
        return runDesktopTest(argc, argv, [](int count, char **arguments) {                                           \
            TestClass test;                                                                                            \
            return QTest::qExec(&test, count, arguments);                                                              \
        });                                                                                                            \
    }
