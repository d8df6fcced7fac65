// SPDX-License-Identifier: MIT
#include "unit/Controller/ControllerTest.h"

#include "Controller/LMReports.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

TEST_F(ControllerTest, PlanTellsWhatARestoreWouldDoAndChangesNothing) {
    defaults.registerDefaults({{Keys::RestoreWindowStates, true},
                               {Keys::RestoreVirtualDesktops, true},
                               {Keys::RestoreStackingOrder, true}});
    LMWindowState& state = desktop.window(draft).state;
    state.isShaded = state.isKeptAbove = true;
    state.desktop = 1;
    perform("SAll");
    state = LMWindowState();
    state.desktop = 0;
    desktop.world().stateSupport.shaded = false;
    desktop.window(draft).frame = {500, 400, 310, 200};
    desktop.removeApplication(u"org.browser"_s);
    launch(u"org.new"_s, {{u"New"_s, {0, 0, 9, 8}}});
    events();
    const QJsonObject plan = LMReports::plan(delegate.commandParts(), QString());
    const auto application = [&](int index) { return plan[u"applications"][index]; };
    const QByteArray expected = R"({"title": "Draft", "storedWindow": "Draft", "score": 4,
        "reasons": ["structure", "title", "subrole"],
        "from": {"x": 500, "y": 400, "width": 310, "height": 200},
        "to": {"x": 10, "y": 20, "width": 300, "height": 200},
        "fromState": {"normalFrame": null, "states": [], "desktop": 0, "desktopName": "One",
            "stackingPosition": null},
        "toState": {"normalFrame": null, "states": ["above"], "desktop": 1, "desktopName": "Two",
            "stackingPosition": 0},
        "notRestored": ["shaded"]})";
    EXPECT_EQ(QJsonDocument(application(0)[u"windows"][0].toObject()).toJson().toStdString(),
              QJsonDocument::fromJson(expected).toJson().toStdString());
    EXPECT_EQ(application(1)[u"running"], false);
    EXPECT_EQ(application(1)[u"unmatched"][0][u"name"], u"News"_s);
    EXPECT_EQ(application(2)[u"stored"], false);
    EXPECT_TRUE(application(2)[u"windows"][0][u"to"].isNull());
    EXPECT_TRUE(LMReports::plan(delegate.commandParts(), u"org.none"_s)[u"error"].isString());
    EXPECT_EQ(events(), QString()) << "a dry run must touch nothing";
}

} // namespace
