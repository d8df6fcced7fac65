// SPDX-License-Identifier: MIT
#include "Utilities/LMPropertyList.h"

#include "Support.h"

#include <QVariantMap>

namespace {

using LMPropertyListTest = TemporaryDirectoryTest;

QByteArray propertyList(const QByteArray& root) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + root +
           "</plist>";
}

TEST_F(LMPropertyListTest, ReadsValues) {
    const QString file =
        write(u"good.plist"_qs,
              propertyList("<dict><key>list</key><array><string>Gr\xc3\xbc\xc3\x9f &amp; e"
                           "</string><string></string></array><key>yes</key><true/>"
                           "<key>real</key><real>0.5</real></dict>"));
    const QVariantMap expected{
        {u"list"_qs, QVariantList{u"Grüß & e"_qs, u""_qs}}, {u"yes"_qs, true}, {u"real"_qs, 0.5}};
    EXPECT_EQ(LMPropertyListFromFile(file).value_or(QVariant()).toMap(), expected);
}

TEST_F(LMPropertyListTest, RefusesBrokenFilesWithAReason) {
    const auto nested = [](int depth) {
        return propertyList(QByteArray("<array>").repeated(depth) +
                            QByteArray("</array>").repeated(depth));
    };
    const QByteArray whole = nested(1);
    const QByteArray huge = propertyList("<string>" + QByteArray(2000000, 'a') + "</string>");
    const QByteArray cases[] = {
        {}, "garbage \xff\xfe", "bplist00\xa1", whole.first(60), nested(100), nested(60000), huge};
    for (const QByteArray& bytes : cases) {
        QString error;
        EXPECT_FALSE(LMPropertyListFromFile(write(u"bad.plist"_qs, bytes), &error))
            << bytes.left(80).toStdString();
        EXPECT_TRUE(error.contains(QLatin1String("bad.plist: "))) << error.toStdString();
    }
    EXPECT_TRUE(LMPropertyListFromFile(write(u"deep.plist"_qs, nested(30))));
    for (const QString& missing : {path(u"missing"_qs), directory.path(), QString()})
        EXPECT_FALSE(LMPropertyListFromFile(missing));
}

} // namespace
