// SPDX-License-Identifier: MIT
#include "ModelTest.h"

#include <QDeadlineTimer>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace {

class ActionTest : public ModelTest {
protected:
    ActionTest() { ::qputenv("TMPDIR", QFile::encodeName(test.directory.path())); }
    ~ActionTest() override { ::qunsetenv("TMPDIR"); }

    /// Runs the script and answers what was logged.
    QString run(const QString& script, const QString& kind = u"Shell Script"_s) {
        action->setRunAs(kind);
        action->setScript(script);
        test.messages.clear();
        action->run();
        test.messages.removeAll(u"Running the action “” of “”…"_s);
        return test.messages.join(u'|').replace(u"Shell script returned: "_s, u"> "_s);
    }

    LMAction* action = insert<LMAction>();
};

} // namespace

TEST_F(ActionTest, ShellScriptsRunUnderTheirInterpreter) {
    const QString error = u"Error running shell script: "_s;
    const QString self = u"echo $#; stat -c %a \"$0\"; basename \"$0\" | cut -c 1-14"_s;
    const struct {
        QString script, logged, rewritten = script;
    } cases[] = {
        {u"echo hi"_s, u"> hi\\n"_s, u"#!/bin/bash\n\necho hi"_s},
        {u"#!/bin/bash\n\necho hi"_s, u"> hi\\n"_s},
        {u"#!/bin/sh\necho $((6*7)); exit 3"_s, u"> 42\\n"_s},
        {u"#!/bin/sh\n(sleep 0.2; echo late) & echo early"_s, u"> early\\nlate\\n"_s},
        {u"#!/bin/sh\n"_s + self, u"> 0\\n700\\norg.rook.Rook.\\n"_s},
        {u"#!/bin/bash\nread -t 0.1 line; echo $(($? > 128))"_s, u"> 1\\n"_s}, // Open, but empty.
        {u"ls"_s, {}},
        {u"#!"_s, {}},
        {u"#!/etc\r\necho"_s, error + u"/etc is not executable"_s},
        {u"#!/bin/sh\recho hi"_s, u"Failed to run shell script"_s},
        {u"#!/bin/sh\r\necho hi\r\n"_s, u"Failed to run shell script"_s}, // The kernel takes CRs.
        {u"#!/bin/sh\0x\necho"_s, error + u"/bin/sh\\u0000x is not executable"_s},
        {u"x\xd800y"_s, {}, u"#!/bin/bash\n\nx\xd800y"_s}, // Not to be written as UTF-8.
    };
    for (const auto& one : cases) {
        EXPECT_EQ(run(one.script), one.logged) << one.script.toStdString();
        EXPECT_EQ(action->script(), one.rewritten);
    }
    EXPECT_LT(run(u"#!/bin/sh\nhead -c 10000000 /dev/zero | tr '\\0' x"_s).size(), 2000);
    for (const QString& kind : {u"shell script"_s, u"AppleScript"_s, u""_s})
        EXPECT_EQ(run(u"#!/bin/sh\necho hi"_s, kind), QString());
    const QDir temporary(test.directory.path());
    EXPECT_EQ(temporary.entryList({u"org.rook.Rook.*"_s}).size(), 1); // The one not written.
}

TEST_F(ActionTest, NoProcessStaysBehindAndSignalsDoNotInterrupt) {
    struct sigaction ticking {};
    ticking.sa_handler = [](int) {};
    ::sigaction(SIGALRM, &ticking, nullptr);
    ::ualarm(1000, 1000); // Interrupts the reads every millisecond.
    EXPECT_EQ(run(u"#!/bin/sh\nsleep 0.1; echo done"_s), u"> done\\n"_s);
    EXPECT_EQ(run(u"#!/bin/sh\nexec >&-; sleep 0.1"_s), u"> "_s);
    ::ualarm(0, 0);

    const QDeadlineTimer deadline(10'000);
    while (::waitpid(-1, nullptr, WNOHANG) != -1 && !deadline.hasExpired())
        ::usleep(1000);
    EXPECT_FALSE(deadline.hasExpired());
}
