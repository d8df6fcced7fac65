// SPDX-License-Identifier: MIT
#include "Utilities/LMFormat.h"

#include <QCoreApplication>
#include <QStringView>

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr std::array conversions{QLatin1String("@"), QLatin1String("lu"), QLatin1String("ld"),
                                 QLatin1String("u"), QLatin1String("d")};

struct Placeholder {
    qsizetype length = 0;   ///< Without the percent sign.
    qsizetype position = 0; ///< Number of its argument from 1; 0 stands for the next one.
};

/// Takes "1$" off the front of the text, with at most two digits.
qsizetype takePosition(QStringView& text) {
    const qsizetype dollar = text.left(3).indexOf(u'$');
    bool isNumber = false;
    const int position = text.left(std::max<qsizetype>(dollar, 0)).toInt(&isNumber);
    if (!isNumber || position < 1)
        return 0;
    text = text.sliced(dollar + 1);
    return position;
}

std::optional<Placeholder> placeholderAt(QStringView text) {
    QStringView rest = text;
    const qsizetype position = takePosition(rest);
    for (const QLatin1String conversion : conversions) {
        if (rest.startsWith(conversion))
            return Placeholder{text.size() - rest.size() + conversion.size(), position};
    }
    return std::nullopt;
}

} // namespace

QString LMFormat(const QString& format, const QStringList& arguments) {
    QString result;
    QStringView rest(format);
    qsizetype nextPosition = 1;
    for (qsizetype percent; (percent = rest.indexOf(u'%')) >= 0;) {
        result += rest.left(percent);
        rest = rest.sliced(percent + 1);
        if (rest.startsWith(u'%')) {
            result += u'%';
            rest = rest.sliced(1);
            continue;
        }
        const std::optional<Placeholder> placeholder = placeholderAt(rest);
        const qsizetype length = placeholder ? placeholder->length : 0;
        qsizetype position = 0;
        if (placeholder)
            position = placeholder->position > 0 ? placeholder->position : nextPosition++;
        if (position > 0 && position <= arguments.size())
            result += arguments[position - 1];
        else
            result.append(u'%').append(rest.left(length));
        rest = rest.sliced(length);
    }
    return result += rest;
}

QString LMLocalized(const char* key, const char* sense) {
    return QCoreApplication::translate("Rook", key, sense);
}
