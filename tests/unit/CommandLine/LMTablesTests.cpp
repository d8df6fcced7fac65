// SPDX-License-Identifier: MIT
#include "CommandLine/LMTables.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <clocale>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Tables, HostileTextCannotSteerTheTerminal) {
    const std::pair<QString, QString> rows[] = {
        {u"é – “ok”"_s, u"é – “ok”"_s},
        {u"a\x1b[2Jb"_s, u"a\ufffd[2Jb"_s},
        {u"two\nlines\r"_s, u"two\ufffdlines\ufffd"_s},
        {u"x\u202Egnp.exe"_s, u"x\ufffdgnp.exe"_s},
        {u"p\u2029q"_s, u"p\ufffdq"_s},
        {QChar(0xD800), u"\ufffd"_s},
        {u"abcdefghijkl"_s, u"abcdefghi…"_s},
    };
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(LMTables::printable(text, 10), expected) << text.toStdString();
}

TEST(Tables, ColumnsAlignAndReportsOfAnyShapeArePrinted) {
    EXPECT_EQ(LMTables::table({{u"A"_s, u"LONG"_s}, {u"wide cell"_s, u"x"_s}}),
              u"A          LONG\nwide cell  x"_s);
    std::setlocale(LC_CTYPE, "C.UTF-8");
    EXPECT_EQ(LMTables::table({{u"窓"_s, u"e\u0301"_s, u"x"_s}, {u"wide"_s, u"b"_s, u"y"_s}}),
              u"窓    e\u0301  x\nwide  b  y"_s);
    const QByteArray plan = R"({"applications":[{"identifier":"xterm","windows":[
        {"title":"a\nb","storedWindow":"shell","score":5,"reasons":["structure","title"],
         "from":{"x":1,"y":2,"width":3,"height":4},"to":{"x":5.5,"y":6,"width":7,"height":8}},
        {"title":"other","storedWindow":null,"score":0,"reasons":[],"from":{},"to":null}],
        "unmatched":[{"name":"gone","frame":{"x":0,"y":0,"width":10,"height":10}}]}]})";
    const QString text = LMTables::forReport(u"Plan"_s, QJsonDocument::fromJson(plan).object());
    EXPECT_EQ(text.count(u'\n'), 3);
    for (const QString& part : {u"7×8 at 5.5,6"_s, u"none: stays"_s, u"none: not open"_s})
        EXPECT_TRUE(text.contains(part)) << part.toStdString();
    const QJsonObject nonsense{{u"applications"_s, u"x"_s}, {u"workspaces"_s, 7}};
    for (const QString& method : {u"Status"_s, u"List"_s, u"Windows"_s, u"Plan"_s})
        EXPECT_FALSE(LMTables::forReport(method, nonsense).isEmpty());
}

} // namespace
