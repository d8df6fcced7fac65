// SPDX-License-Identifier: MIT
#include "Utilities/LMLogger.h"

#include "Support.h"

namespace {

using LMLoggerTest = TemporaryDirectoryTest;

TEST_F(LMLoggerTest, EscapesAndCutsHostileText) {
    const QString longTitle(100000, u'a');
    const QString emoji = u"\U0001F426"_qs;
    const std::pair<QString, QString> cases[] = {
        {u"{} {0} %@ %s %n"_qs, u"{} {0} %@ %s %n"_qs},
        {u"a\nb\r\x1b[2J"_qs, u"a\\nb\\r\\u001b[2J"_qs},
        {u"a\u202eb\u2028\u0085"_qs, u"a\\u202eb\\u2028\\u0085"_qs},
        {QString(QChar(0xd800)) + u'x', u"\\ud800x"_qs},
        {emoji + u"e\u0301"_qs, emoji + u"e\u0301"_qs},
        {longTitle, longTitle.left(1000) + u"... (99000 more characters)"_qs},
        {QString(999, u'a') + emoji, QString(999, u'a') + u"\\ud83d... (1 more characters)"_qs},
    };
    for (const auto& [argument, logged] : cases) {
        logger.error(u"\t\"%@\""_qs, {argument});
        EXPECT_EQ(messages.takeLast(), u"\t\""_qs + logged + u'"');
    }
    logger.error(u"%@"_qs.repeated(50), QStringList(50, longTitle));
    EXPECT_LT(messages.takeLast().size(), 8100);
}

} // namespace
