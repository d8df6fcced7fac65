// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMScriptImport.h"

#include "Utilities/LMFormat.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>

namespace {

/// Nobody writes a longer script by hand.
constexpr qint64 LongestFile = 10'000'000; // bytes

bool isText(const QString& text) {
    return std::none_of(text.begin(), text.end(), [](QChar character) {
        return character.category() == QChar::Other_Control && !character.isSpace() &&
               character != u'\x1b' && character != u'\b';
    });
}

QString decoded(const QByteArray& bytes, QStringConverter::Encoding encoding) {
    // Stateless: half a character at the end is an error.
    QStringDecoder decoder(encoding, QStringConverter::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return decoder.hasError() || !isText(text) ? QString() : text;
}

} // namespace

QString LMTextFromFile(const QString& path) {
    QFile file(path);
    // What is no plain file may have no end.
    if (!QFileInfo(path).isFile() || file.size() > LongestFile || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.read(LongestFile);
    if (const auto marked = QStringConverter::encodingForData(bytes))
        return decoded(bytes, *marked);
    for (const auto encoding :
         {QStringConverter::Utf8, QStringConverter::System, QStringConverter::Latin1}) {
        const QString text = decoded(bytes, encoding);
        if (!text.isEmpty())
            return text;
    }
    return {};
}

LMImportedScript LMImportScript(const QString& path) {
    LMImportedScript imported;
    const QString name = QFileInfo(path).fileName();
    const qsizetype dot = name.lastIndexOf(u'.');
    const bool hasExtension = dot > 0; // A dot in front hides a file.
    const QString extension = hasExtension ? name.mid(dot + 1) : QString();
    if (extension.compare(QLatin1String("scpt"), Qt::CaseInsensitive) == 0) {
        imported.failure.message = LMLocalized("Could not import AppleScript");
        imported.failure.informativeText = LMLocalized(
            "Please ensure that the file you are importing has not been saved as “Run Only”.");
        return imported;
    }
    imported.script = LMTextFromFile(path);
    if (imported.script.isEmpty()) {
        imported.failure.message = LMLocalized("Could not import Shell Script");
        imported.failure.informativeText =
            LMLocalized("Please ensure that the file you are importing is plain text.");
        return imported;
    }
    imported.label = hasExtension ? name.left(dot) : name;
    imported.runAs = QStringLiteral("Shell Script");
    return imported;
}
