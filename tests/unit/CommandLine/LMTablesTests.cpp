// SPDX-License-Identifier: MIT
#include "CommandLine/LMTables.h"

#include <QJsonObject>

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
    std::setlocale(LC_CTYPE, "C.UTF-8");
    EXPECT_EQ(LMTables::table({{u"窓"_s, u"e\u0301"_s, u"x"_s}, {u"wide"_s, u"b"_s, u"y"_s}}),
              u"窓    e\u0301  x\nwide  b  y"_s);
    const QJsonObject nonsense{{u"applications"_s, u"x"_s}, {u"workspaces"_s, 7}};
    for (const QString& method : {u"Status"_s, u"List"_s, u"Windows"_s, u"Plan"_s})
        EXPECT_FALSE(LMTables::forReport(method, nonsense).isEmpty());
}

} // namespace
