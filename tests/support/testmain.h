// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#ifndef TESTS_SUPPORT_TESTMAIN_H
#define TESTS_SUPPORT_TESTMAIN_H

#include <QObject>
#include <QTemporaryDir>

#include <memory>

/**
 * Gives a test a home of its own before any application object exists, so that no test reads or
 * writes files and settings of the person who runs it. Settings, cache, data and runtime folders
 * are in a fresh temporary folder, and on Windows the registry is empty. Elsewhere the platform is
 * offscreen unless the caller chose one. Qt's offscreen platform has no fonts on Windows, so tests
 * show windows there.
 */
class TestHome
{
public:
    TestHome();

private:
    QTemporaryDir m_folder;
    /// Set on Windows only. The type behind it exists only there, so this header does not name it.
    std::shared_ptr<void> m_registry;
};

/**
 * While it exists, the leak check of a sanitized build ignores what is allocated. Qt's offscreen
 * platform creates its screen together with the application object and never frees it.
 */
class LeakCheckPause
{
public:
    LeakCheckPause();
    ~LeakCheckPause();
    LeakCheckPause(const LeakCheckPause &) = delete;
    LeakCheckPause &operator=(const LeakCheckPause &) = delete;
};

/// Runs all test functions of @p test and returns QTest's exit status. The run also fails if
/// anything was logged that no test function expected by QTest::ignoreMessage().
int runTestStrictly(QObject &test, int argc, char **argv);

/// The main function of a test: @p Application is QCoreApplication for logic, QApplication for
/// widgets. @p rest is what its constructor takes besides the command line.
template <typename Application, typename Test, typename... Rest>
int runTestMain(int argc, char **argv, Rest... rest)
{
    const TestHome home;
    auto pause = std::make_unique<LeakCheckPause>();
    Application application(argc, argv, rest...);
    pause.reset();
    application.setApplicationName(QStringLiteral("Dezimo"));
    application.setOrganizationName(QStringLiteral("Vantrel"));
    Test test;
    return runTestStrictly(test, argc, argv);
}

#define DEZIMO_TEST_MAIN(Application, Test)                                                        \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return runTestMain<Application, Test>(argc, argv);                                         \
    }

#endif
