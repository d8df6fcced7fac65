// SPDX-License-Identifier: MIT
#include "unit/Controller/ControllerTest.h"

#include "Controller/LMReports.h"

#include <QJsonArray>

namespace {

TEST_F(ControllerTest, PlanTellsWhatARestoreWouldDoAndChangesNothing) {
    perform("SAll");
    desktop.window(draft).frame = {500, 400, 310, 200};
    desktop.removeApplication(u"org.browser"_s);
    launch(u"org.new"_s);
    events();
    const QJsonObject plan = LMReports::plan(delegate.commandParts(), QString());
    const auto application = [&](int index) { return plan[u"applications"][index]; };
    EXPECT_EQ(application(0)[u"windows"][0][u"from"][u"x"], 500);
    EXPECT_EQ(application(0)[u"windows"][0][u"to"][u"x"], 10);
    EXPECT_EQ(application(1)[u"running"], false);
    EXPECT_EQ(application(1)[u"unmatched"][0][u"name"], u"News"_s);
    EXPECT_EQ(application(2)[u"stored"], false);
    EXPECT_TRUE(application(2)[u"windows"][0][u"to"].isNull());
    EXPECT_TRUE(LMReports::plan(delegate.commandParts(), u"org.none"_s)[u"error"].isString());
    EXPECT_EQ(events(), QString()) << "a dry run must touch nothing";
}

} // namespace
