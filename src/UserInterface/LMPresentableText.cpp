// SPDX-License-Identifier: MIT
#include "UserInterface/LMPresentableText.h"

#include <QGuiApplication>

namespace {

constexpr qsizetype LongestWord = 20;
constexpr qsizetype LongestLine = 500;
constexpr int MostToolTipLines = 10;
constexpr QChar Ellipsis(0x2026);
constexpr QChar ZeroWidthSpace(0x200B);

/// The embeddings, overrides and isolates of Unicode's bidirectional algorithm reach beyond the
/// text that holds them. The plain marks (LRM, RLM, ALM) do not.
bool turnsDirection(QChar character) {
    const char16_t code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

/// Translations put them before colons and between quotation marks and words.
bool isNoBreakSpace(QChar character) {
    const char16_t code = character.unicode();
    return code == 0x00A0 || code == 0x202F;
}

bool isLineBreak(QChar character) {
    const char16_t code = character.unicode();
    return code == '\n' || code == 0x2028 || code == 0x2029;
}

/// Half of a pair, or a mark that belongs to the character before it: no place for a break.
bool continuesCharacter(QChar character) {
    return character.isLowSurrogate() || character.isMark();
}

QString cutInTheMiddle(const QString& text, qsizetype mostCharacters) {
    if (text.size() <= mostCharacters)
        return text;
    qsizetype begin = mostCharacters / 2;
    while (begin > 0 && continuesCharacter(text.at(begin)))
        --begin;
    qsizetype end = text.size() - (mostCharacters - mostCharacters / 2);
    while (end < text.size() && continuesCharacter(text.at(end)))
        ++end;
    return text.left(begin) + QLatin1Char(' ') + Ellipsis + QLatin1Char(' ') + text.mid(end);
}

} // namespace

QString LMPresentableText(const QString& text, qsizetype mostCharacters, int mostLines) {
    const QString source = cutInTheMiddle(text, mostCharacters);
    QString result;
    result.reserve(source.size());
    qsizetype wordLength = 0;
    int lines = 1;
    for (const QChar character : source) {
        if (turnsDirection(character))
            continue;
        const bool breaks = isLineBreak(character) && lines < mostLines;
        const bool isSpace = (character.isSpace() && !isNoBreakSpace(character)) ||
                             character.category() == QChar::Other_Control;
        if (wordLength >= LongestWord && !isSpace && !continuesCharacter(character)) {
            result.append(ZeroWidthSpace);
            wordLength = 0;
        }
        wordLength = isSpace ? 0 : wordLength + 1;
        lines += breaks ? 1 : 0;
        result.append(breaks    ? QChar(QLatin1Char('\n'))
                      : isSpace ? QChar(QLatin1Char(' '))
                                : character);
    }
    return result;
}

QString LMPresentableLine(const QString& text) {
    return LMPresentableText(text, LongestLine, 1).remove(ZeroWidthSpace).simplified();
}

QString LMEscapedAmpersands(const QString& line) {
    return QString(line).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString LMWithoutMnemonic(const QString& text) {
    QString result = text;
    const qsizetype bracket = result.indexOf(QLatin1String("(&"));
    if (bracket >= 0 && result.indexOf(u')', bracket) == bracket + 3) {
        const qsizetype space = bracket > 0 && result.at(bracket - 1).isSpace() ? 1 : 0;
        result.remove(bracket - space, space + 4);
    }
    return result.remove(u'&');
}

QString LMLeftToRight(const QString& text) {
    constexpr QChar Isolate(0x2066), PopIsolate(0x2069);
    return QGuiApplication::isRightToLeft() ? Isolate + text + PopIsolate : text;
}

QString LMPresentableToolTip(const QString& text) {
    if (text.isEmpty())
        return {};
    return QLatin1String("<p>") +
           LMPresentableText(text, LongestLine, MostToolTipLines).toHtmlEscaped() +
           QLatin1String("</p>");
}
