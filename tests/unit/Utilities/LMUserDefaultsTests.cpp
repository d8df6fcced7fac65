// SPDX-License-Identifier: MIT
#include "Utilities/LMUserDefaults.h"

#include "Support.h"

#include <filesystem>
#include <sys/stat.h>

namespace {

class LMUserDefaultsTest : public TemporaryDirectoryTest {
protected:
    LMUserDefaults open() const { return LMUserDefaults(file, logger); }
    static QString key(const char* name) { return QLatin1String(name); }

    const QString name = u"settings.ini"_qs;
    const QString file = path(name);
};

TEST_F(LMUserDefaultsTest, ReadsHandEditedValuesOrFallsBackToRegisteredOnes) {
    write(name, "[General]\nyes=YES\noff= off\nlist=a, b\nnumber=2.5e1\ninfinite=inf\n"
                "strange=@Rect(1 2 3 4)\nbinary=@Variant(\\0\\0\\0\\t\\0\\xff\\xff\\xff\\xff)\n"
                "json={broken\n[Group]\nkey=value\n");
    LMUserDefaults defaults = open();
    QVariantMap registered{{key("yes"), false}};
    for (const char* fallback : {"list", "infinite", "strange", "binary", "json"})
        registered.insert(key(fallback), 7);
    defaults.registerDefaults(registered);
    const std::tuple<const char*, bool, double, QString, QStringList> cases[] = {
        {"yes", true, 0, key("YES"), {key("YES")}},
        {"off", false, 0, key("off"), {key("off")}},
        {"list", true, 7, key("7"), {key("a"), key("b")}},
        {"number", true, 25, key("2.5e1"), {key("2.5e1")}},
        {"infinite", true, 7, key("inf"), {key("inf")}},
        {"strange", true, 7, key("7"), {key("7")}},
        {"binary", true, 7, key("7"), {}},
        {"Group/key", false, 0, key("value"), {key("value")}},
    };
    for (const auto& [each, boolean, number, string, array] : cases) {
        EXPECT_EQ(defaults.boolForKey(key(each)), boolean) << each;
        EXPECT_EQ(defaults.doubleForKey(key(each)), number) << each;
        EXPECT_EQ(defaults.stringForKey(key(each)), string) << each;
        EXPECT_EQ(defaults.stringArrayForKey(key(each)), array) << each;
    }
    EXPECT_TRUE(defaults.dictionaryForKey(key("json")).isEmpty());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(LMUserDefaultsTest, KeepsWhatWasSet) {
    const QString nasty = u"@Variant a,b\n\"\\ \U0001F426;="_qs;
    const QStringList list{nasty, key(""), key("x")};
    const QByteArray data("\0\xff\n@,", 5);
    LMUserDefaults before = open();
    before.setObject(key("string"), nasty);
    before.setObject(key("data"), data);
    before.setObject(key("map"), QVariantMap{{key("keyCode"), 12}});
    before.setObject(key("list"), list);
    before.setObject(key("none"), QStringList());
    LMUserDefaults defaults = open();
    defaults.registerDefaults({{key("none"), QStringList(key("registered"))}});
    EXPECT_EQ(defaults.stringForKey(key("string")), nasty);
    EXPECT_EQ(defaults.dataForKey(key("data")), data);
    EXPECT_EQ(defaults.dictionaryForKey(key("map")).value(key("keyCode")), 12);
    EXPECT_EQ(defaults.stringArrayForKey(key("list")), list);
    EXPECT_EQ(defaults.stringArrayForKey(key("none")), QStringList());
}

TEST_F(LMUserDefaultsTest, TheFileIsForTheOwnerOnlyAndMayBeALinkThatOthersEdit) {
    const QString nested = path(u"a/b/settings.ini"_qs);
    LMUserDefaults(nested, logger).setObject(key("x"), 1);
    write(u"a/b/settings.ini"_qs, "[General]\nhand=edited\n");
    QFile::setPermissions(nested, QFile::ReadUser | QFile::WriteUser | QFile::ReadOther);
    ASSERT_TRUE(QFile::link(nested, file));
    LMUserDefaults defaults = open();
    defaults.setObject(key("y"), 2);
    write(u"a/b/settings.ini"_qs, "[General]\nhand=edited\nx=5\n");
    defaults.setObject(key("y"), 3);
    EXPECT_EQ(content(u"a/b/settings.ini"_qs), QByteArray("[General]\nhand=edited\nx=5\ny=3\n"));
    EXPECT_EQ(defaults.stringForKey(key("hand")), key("edited"));
    EXPECT_TRUE(std::filesystem::is_symlink(file.toStdString()));
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(nested.toStdString()).permissions(),
              perms::owner_read | perms::owner_write);
}

TEST_F(LMUserDefaultsTest, LeavesMalformedFilesAloneUntilSomethingIsSet) {
    const std::pair<QByteArray, bool> cases[] = {
        {"good=1\nthis is no setting\n", true},
        {"good=1\n=nameless\n", true},
        {"[unclosed\ngood=1\n", false},
        {QByteArray("\0\1\2\xff\xfe garbage", 13), false},
        {"good=1\n;" + QByteArray(2000000, 'a'), false},
    };
    int copies = 0;
    for (const auto& [malformed, isPartlyReadable] : cases) {
        messages.clear();
        write(name, malformed);
        LMUserDefaults defaults = open();
        EXPECT_EQ(defaults.boolForKey(key("good")), isPartlyReadable);
        EXPECT_EQ(messages.size(), 1);
        EXPECT_EQ(content(name), malformed);

        defaults.setObject(key("new"), key("value"));
        EXPECT_EQ(content(u"settings.ini.malformed-%1"_qs.arg(++copies)), malformed);
        EXPECT_EQ(open().stringForKey(key("new")), key("value"));
        QFile::remove(file);
    }
}

TEST_F(LMUserDefaultsTest, FailedWritesAreLoggedAndTheValueHolds) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(file).constData(), 0600), 0); // Nobody waits for it.
    LMUserDefaults defaults = open();
    messages.clear();
    defaults.setObject(key("x"), 1);
    EXPECT_EQ(messages.size(), 1);
    EXPECT_EQ(defaults.doubleForKey(key("x")), 1);
    ASSERT_TRUE(std::filesystem::is_fifo(file.toStdString()));
    std::filesystem::remove(file.toStdString());
    for (const int value : {3, 2})
        defaults.setObject(key("y"), value);
    EXPECT_EQ(content(name), QByteArray("[General]\nx=1\ny=2\n"));
    EXPECT_FALSE(QFile::exists(file + u".malformed-1"_qs)) << "a file of our own is not malformed";

    // A full disk keeps the old content.
    LMUserDefaults again = open();
    messages.clear();
    LMWithFullDisk(4096, [&] { again.setObject(key("big"), QString(100000, u'x')); });
    EXPECT_EQ(messages.size(), 1);
    EXPECT_EQ(content(name), QByteArray("[General]\nx=1\ny=2\n"));
}

} // namespace
