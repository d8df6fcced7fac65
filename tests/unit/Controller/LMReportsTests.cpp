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
    desktop.window(draft).state.isShaded = desktop.window(draft).state.isKeptAbove = true;
    desktop.window(draft).state.desktop = 1;
    perform("SAll");
    desktop.window(draft).state = LMWindowState();
    desktop.window(draft).state.desktop = 0;
    desktop.world().stateSupport.shaded = false;
    desktop.window(draft).frame = {500, 400, 310, 200};
    desktop.removeApplication(u"org.browser"_s);
    launch(u"org.new"_s, {{u"New"_s, {0, 0, 9, 8}}});
    events();
    const auto plan = [&](const QString& identifier) {
        return LMReports::plan(delegate.commandParts(), identifier);
    };
    const auto state = [](const char* names, const char* number, const char* place) {
        return QByteArray(R"({"normalFrame": null, "states": [)") + names + R"(], "desktop": )" +
               number + R"(, "stackingPosition": )" + place + '}';
    };
    const QByteArray now = state("", R"(0, "desktopName": "One")", "null");
    const QByteArray expected = R"({"applications": [
        {"identifier": "org.editor", "name": "Editor", "running": true, "stored": true, "windows": [
            {"title": "Draft", "storedWindow": "Draft", "score": 4,
             "reasons": ["structure", "title", "subrole"],
             "from": {"x": 500, "y": 400, "width": 310, "height": 200},
             "to": {"x": 10, "y": 20, "width": 300, "height": 200},
             "fromState": )" + now +
                                R"(, "notRestored": ["shaded"], "toState": )" +
                                state("\"above\"", R"(1, "desktopName": "Two")", "0") + R"(},
            {"title": "Letter", "storedWindow": "Letter", "score": 5,
             "reasons": ["structure", "title", "subrole", "size"],
             "from": {"x": 50, "y": 60, "width": 310, "height": 210},
             "to": {"x": 50, "y": 60, "width": 310, "height": 210},
             "fromState": )" + now +
                                R"(, "notRestored": [], "toState": )" +
                                state("", R"(0, "desktopName": "One")", "1") +
                                R"(}], "unmatched": []},
        {"identifier": "org.browser", "name": "org.browser", "running": false, "stored": true,
         "windows": [], "unmatched": [
            {"name": "News", "frame": {"x": 100, "y": 100, "width": 640, "height": 480}}]},
        {"identifier": "org.new", "name": "org.new", "running": true, "stored": false, "windows": [
            {"title": "New", "storedWindow": null, "score": 0, "reasons": [],
             "from": {"x": 0, "y": 0, "width": 9, "height": 8}, "to": null, "fromState": )" +
                                now + R"(, "toState": null, "notRestored": []}], "unmatched": []}],
        "restores": {"states": true, "desktops": true, "stackingOrder": true}})";
    EXPECT_EQ(QJsonDocument(plan(QString())).toJson().toStdString(),
              QJsonDocument::fromJson(expected).toJson().toStdString());
    EXPECT_EQ(plan(u"org.new"_s)[u"applications"].toArray().size(), 1);
    EXPECT_TRUE(plan(u"org.none"_s)[u"error"].isString());
    EXPECT_EQ(events(), QString()) << "a dry run must touch nothing";
}

TEST_F(ControllerTest, WindowsAreListedWithTheirPlacesInThePile) {
    const QJsonObject report = LMReports::windows(delegate.commandParts());
    const QJsonArray applications = report[u"applications"].toArray();
    qsizetype count = 0;
    for (const QJsonValue application : applications) {
        const QJsonArray windows = application[u"windows"].toArray();
        for (const QJsonValue window : windows) {
            const int place = window[u"state"][u"stackingPosition"].toInt(-1);
            const quint32 number = desktop.world().stacking.value(place);
            EXPECT_EQ(window[u"title"].toString(), desktop.world().windows[number].title);
            ++count;
        }
    }
    EXPECT_GT(count, 2);
}

} // namespace
