// SPDX-License-Identifier: MIT
#include "CommandLine/LMTables.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

TEST(Tables, HostileTextCannotSteerTheTerminal) {
    struct Row {
        QString text;
        QString expected;
    };
    const QChar mark(0xFFFD);
    const Row rows[] = {
        {QStringLiteral("é – “ok”"), QStringLiteral("é – “ok”")},
        {QStringLiteral("a\x1b[2Jb"), QStringLiteral("a") + mark + QStringLiteral("[2Jb")},
        {QStringLiteral("two\nlines\r"),
         QStringLiteral("two") + mark + QStringLiteral("lines") + mark},
        {QStringLiteral("x\u202Egnp.exe"), QStringLiteral("x") + mark + QStringLiteral("gnp.exe")},
        {QStringLiteral("p\u2029q"), QStringLiteral("p") + mark + QStringLiteral("q")},
        {QString(QChar(0xD800)), QString(mark)},
        {QStringLiteral("abcdefghijkl"), QStringLiteral("abcdefghi…")},
    };
    for (const Row& row : rows)
        EXPECT_EQ(LMTables::printable(row.text, 10), row.expected) << row.text.toStdString();
    EXPECT_LE(LMTables::printable(QString(100000, QLatin1Char('x')), 48).size(), 48);
}

TEST(Tables, ColumnsAlignAndEveryRowIsOneLine) {
    const QString text = LMTables::table({{QStringLiteral("A"), QStringLiteral("LONG")},
                                          {QStringLiteral("wide cell"), QStringLiteral("x")}});
    EXPECT_EQ(text, QStringLiteral("A          LONG\nwide cell  x"));
}

TEST(Tables, ReportsOfAnyShapeArePrinted) {
    const QByteArray plan = R"({"applications":[{"identifier":"xterm","windows":[
        {"title":"a\nb","storedWindow":"shell","score":5,"reasons":["structure","title"],
         "from":{"x":1,"y":2,"width":3,"height":4},"to":{"x":5.5,"y":6,"width":7,"height":8}},
        {"title":"other","storedWindow":null,"score":0,"reasons":[],"from":{},"to":null}],
        "unmatched":[{"name":"gone","frame":{"x":0,"y":0,"width":10,"height":10}}]}]})";
    const QString text =
        LMTables::forReport(QStringLiteral("Plan"), QJsonDocument::fromJson(plan).object());
    EXPECT_EQ(text.count(QLatin1Char('\n')), 3);
    EXPECT_TRUE(text.contains(u"7×8 at 5.5,6"));
    EXPECT_TRUE(text.contains(u"none: stays"));
    EXPECT_TRUE(text.contains(u"none: not open"));
    const QJsonObject nonsense{{QStringLiteral("applications"), QStringLiteral("x")},
                               {QStringLiteral("workspaces"), 7}};
    for (const char* method : {"Status", "List", "Windows", "Plan"})
        EXPECT_FALSE(LMTables::forReport(QLatin1String(method), nonsense).isEmpty());
}

} // namespace
