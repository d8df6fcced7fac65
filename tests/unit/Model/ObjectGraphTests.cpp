// SPDX-License-Identifier: MIT
#include "ModelTest.h"

#include <sys/stat.h>

TEST_F(ModelTest, HostileTextsComeBackAsTheyWere) {
    const QStringList texts{QString(),
                            u""_s,
                            u"two\nlines\ttab \"quoted\" back\\slash"_s,
                            u"nul \0 inside"_s,
                            u"\u05d0\u05d1 e\u0301 \U0001F600"_s,
                            QString(100'000, u'x')};
    for (const QString& text : texts)
        window(text)->setChildren(QStringList{text + u""_s, u"next"_s});
    window(u"full"_s)->setChildren(QStringList());
    ASSERT_TRUE(context().save());
    reopen();
    const std::vector<LMWindow*> windows = context().objects<LMWindow>();
    ASSERT_EQ(windows.size(), 7u);
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const LMWindow* loaded = windows[static_cast<std::size_t>(i)];
        EXPECT_EQ(loaded->title(), texts[i]);
        EXPECT_EQ(loaded->title().isNull(), texts[i].isNull());
        EXPECT_EQ(loaded->children(), QStringList({texts[i] + u""_s, u"next"_s}));
    }
    EXPECT_EQ(windows.back()->children(), QStringList());
    EXPECT_FALSE(world.hasLogged(u"cannot be read"_s));
}

TEST_F(ModelTest, IdentifiersAreFinalFromInsertionAndNeverReused) {
    const LMObjectID first = window(u"first"_s)->objectID();
    LMWindow* second = window(u"second"_s);
    const LMObjectID secondID = second->objectID();
    EXPECT_EQ(context().managedObjectIDForURIRepresentation(u"rook://Window/1"_s), first);
    for (const QString& uri :
         {u""_s, u"rook://"_s, u"rook://Window/"_s, u"rook://Window/01"_s, u"rook://Window/-1"_s,
          u"rook://Window/0"_s, u"rook://Window/1 "_s, u"rook://Crate/1"_s, u"box://Window/1"_s,
          u"rook://Window/99999999999999999999"_s})
        EXPECT_TRUE(context().managedObjectIDForURIRepresentation(uri).isNull())
            << uri.toStdString();
    context().deleteObject(second);
    EXPECT_EQ(context().existingObjectWithID(secondID), nullptr);
    ASSERT_TRUE(context().save());
    reopen();
    EXPECT_NE(context().existingObjectWithID(first), nullptr);
    EXPECT_EQ(window(u"third"_s)->objectID().key, 3);
}

TEST_F(ModelTest, SavingNothingTouchesNoFile) {
    const auto modified = [](const QString& file) {
        struct stat status {};
        EXPECT_EQ(::stat(QFile::encodeName(file).constData(), &status), 0);
        return std::pair(status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
    };
    makeStore();
    reopen();
    const QString folder = QFileInfo(path()).path();
    const auto before = std::pair(modified(path()), modified(folder));
    LMWindow* a = context().objects<LMWindow>().front();
    a->setTitle(u"a"_s);
    window(u"transient"_s);
    context().discardTransientObjects();
    context().deleteObject(window(u"gone"_s));
    EXPECT_FALSE(context().hasChanges());
    ASSERT_TRUE(context().save());
    EXPECT_EQ(std::pair(modified(path()), modified(folder)), before);
    a->setTitle(u"changed"_s);
    EXPECT_TRUE(context().hasChanges());
    ASSERT_TRUE(context().save());
    EXPECT_NE(modified(path()), before.first);
}
