// SPDX-License-Identifier: MIT
#include "Utilities/LMRectangle.h"

#include "Utilities/LMFormat.h"

#include <QStringView>

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace {

// Text of this length holds any four numbers; what stands beyond it is not worth the scan.
constexpr qsizetype longestRectangleText = 4096;

QString numberText(double number) {
    if (number == 0.0 || !std::isfinite(number))
        return QStringLiteral("0");
    const double magnitude = std::abs(number);
    const bool isPlain = magnitude >= 1e-4 && magnitude < 1e17;
    std::array<char, 64> buffer;
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                      isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    Q_ASSERT(error == std::errc());
    return QString::fromLatin1(buffer.data(), end - buffer.data());
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Whether an unsigned number starts at the front: a digit, or a point and a digit.
bool startsNumber(std::string_view text) {
    if (text.starts_with('.'))
        text.remove_prefix(1);
    return !text.empty() && isDigit(text.front());
}

/// Takes the next number off the front of the text; 0 when there is none or it is out of range.
double takeNumber(std::string_view& text) {
    while (!text.empty() && !startsNumber(text)) {
        const bool isNegative = text.front() == '-';
        text.remove_prefix(1);
        if (isNegative && startsNumber(text))
            return -takeNumber(text);
    }
    double number = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return error == std::errc() && std::isfinite(number) ? number : 0.0;
}

} // namespace

QString LMStringFromRect(const QRectF& rect) {
    return LMFormat(QStringLiteral("{{%@, %@}, {%@, %@}}"),
                    {numberText(rect.x()), numberText(rect.y()), numberText(rect.width()),
                     numberText(rect.height())});
}

QRectF LMRectFromString(const QString& text) {
    const QByteArray bytes = QStringView(text).left(longestRectangleText).toLatin1();
    std::string_view rest(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    std::array<double, 4> numbers{};
    for (double& number : numbers)
        number = takeNumber(rest);
    return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

bool LMRectsEqual(const QRectF& a, const QRectF& b) {
    return a.x() == b.x() && a.y() == b.y() && LMSizesEqual(a.size(), b.size());
}

bool LMSizesEqual(const QSizeF& a, const QSizeF& b) {
    return a.width() == b.width() && a.height() == b.height();
}

bool LMRectContainsRect(const QRectF& outer, const QRectF& inner) {
    return inner.left() >= outer.left() && inner.top() >= outer.top() &&
           inner.right() <= outer.right() && inner.bottom() <= outer.bottom();
}
