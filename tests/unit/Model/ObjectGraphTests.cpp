// SPDX-License-Identifier: MIT
#include "ModelTest.h"

#include <filesystem>

TEST_F(ModelTest, HostileTextsComeBackAsTheyWere) {
    const QStringList texts{QString(),
                            u""_s,
                            u"two\nlines\ttab \"quoted\" back\\slash"_s,
                            u"nul \0 inside"_s,
                            u"\u05d0\u05d1 e\u0301 \U0001F600"_s,
                            QString(100'000, u'x')};
    for (const QString& text : texts)
        window(text)->setChildren(QStringList{text + u""_s, u"next"_s});
    ASSERT_TRUE(context().save());
    reopen();
    ASSERT_EQ(all<LMWindow>().size(), 6u);
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const LMWindow* loaded = all<LMWindow>()[static_cast<std::size_t>(i)];
        EXPECT_EQ(loaded->title(), texts[i]);
        EXPECT_EQ(loaded->title().isNull(), texts[i].isNull());
        EXPECT_EQ(loaded->children(), QStringList({texts[i] + u""_s, u"next"_s}));
    }
}

TEST_F(ModelTest, IdentifiersAreFinalFromInsertionAndNeverReused) {
    window(u"first"_s);
    LMWindow* second = window(u"second"_s);
    const LMObjectID secondID = second->objectID();
    for (const char* uri : {"", "rook://Window/", "rook://Window/01", "rook://Window/-1",
                            "rook://Crate/1", "rook://Window/99999999999999999999"})
        EXPECT_TRUE(context().managedObjectIDForURIRepresentation(QLatin1String(uri)).isNull())
            << uri;
    context().deleteObject(second);
    EXPECT_EQ(context().existingObjectWithID(secondID), nullptr);
    ASSERT_TRUE(context().save());
    reopen();
    EXPECT_EQ(window(u"third"_s)->objectID().key, 3);
}

TEST_F(ModelTest, SavingNothingTouchesNoFile) {
    makeStore();
    reopen();
    const std::filesystem::path file = path().toStdString();
    const auto modified = [&] {
        return std::pair(last_write_time(file), last_write_time(file.parent_path()));
    };
    const auto before = modified();
    all<LMWindow>().front()->setTitle(u"a"_s);
    window(u"transient"_s);
    context().discardTransientObjects();
    context().deleteObject(window(u"gone"_s));
    EXPECT_FALSE(context().hasChanges());
    ASSERT_TRUE(context().save());
    EXPECT_EQ(modified(), before);
}
