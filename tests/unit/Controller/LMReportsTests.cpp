// SPDX-License-Identifier: MIT
#include "unit/Controller/ControllerTest.h"

#include "Controller/LMReports.h"

#include <QJsonArray>

namespace {

TEST_F(ControllerTest, PlanTellsWhatARestoreWouldDoAndChangesNothing) {
    perform("SAll");
    desktop.window(draft).frame = {500, 400, 300, 200};
    desktop.removeApplication(QStringLiteral("org.browser"));
    desktop.log().clear();
    const QJsonObject plan = LMReports::plan(delegate.commandParts(), QString());
    EXPECT_TRUE(desktop.log().events().isEmpty()) << "a dry run must touch nothing";

    QHash<QString, QJsonObject> applications;
    for (const QJsonValue& application : plan[u"applications"].toArray())
        applications.insert(application[u"identifier"].toString(), application.toObject());
    const QJsonObject window = applications[QStringLiteral("org.editor")][u"windows"][0].toObject();
    EXPECT_EQ(window[u"storedWindow"].toString(), QStringLiteral("Draft"));
    EXPECT_EQ(window[u"score"].toInt(), 5);
    EXPECT_EQ(window[u"from"][u"x"].toDouble(), 500);
    EXPECT_EQ(window[u"to"][u"x"].toDouble(), 10);
    EXPECT_EQ(window[u"reasons"].toArray(),
              QJsonArray({QStringLiteral("structure"), QStringLiteral("title"),
                          QStringLiteral("subrole"), QStringLiteral("size")}));
    const QJsonObject browser = applications[QStringLiteral("org.browser")];
    EXPECT_FALSE(browser[u"running"].toBool());
    EXPECT_EQ(browser[u"unmatched"][0][u"name"].toString(), QStringLiteral("News"));
    EXPECT_TRUE(
        LMReports::plan(delegate.commandParts(), QStringLiteral("org.none"))[u"error"].isString());
}

TEST_F(ControllerTest, ReportsCountWhatIsThere) {
    perform("SAll");
    const QJsonObject status = LMReports::status(delegate.commandParts());
    EXPECT_EQ(status[u"counts"][u"storedWindows"].toInt(), 3);
    EXPECT_EQ(status[u"currentWorkspace"].toString(), QStringLiteral("1 Display"));
    EXPECT_TRUE(status[u"permission"][u"trusted"].toBool());
    const QJsonObject list = LMReports::list(delegate.commandParts());
    EXPECT_TRUE(list[u"workspaces"][0][u"current"].toBool());
    EXPECT_EQ(list[u"workspaces"][0][u"applications"].toArray().size(), 2);
    const QJsonObject windows = LMReports::windows(delegate.commandParts());
    EXPECT_EQ(windows[u"applications"][0][u"windows"].toArray().size(), 2);
}

} // namespace
