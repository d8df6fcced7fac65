// SPDX-License-Identifier: MIT
#include "Platform/LMIconTheme.h"

#include "Platform/LMKeyFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int deepestInheritance = 8;
constexpr qint64 largestFile = 4 << 20;
constexpr int largestEdge = 4096;

/// The first file of the name with an extension that icons have.
QString existingFile(const QString& pathWithoutExtension) {
    for (const char* extension : {".png", ".svg", ".xpm"}) {
        const QString path = pathWithoutExtension + QLatin1String(extension);
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

/// Some entries give the file's name, which the rules do not provide for.
QString withoutExtension(const QString& name) {
    for (const char* extension : {".png", ".svg", ".xpm"}) {
        if (name.endsWith(QLatin1String(extension)))
            return name.chopped(4);
    }
    return name;
}

/// Text in a drawing asks for fonts, which exist in a process with a display connection only;
/// without one Qt ends the program.
bool needsDisplay(QFile& file) {
    const bool isDrawing = file.fileName().endsWith(QLatin1String(".svg")) ||
                           file.fileName().endsWith(QLatin1String(".svgz"));
    if (!isDrawing || qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr)
        return false;
    const QByteArray content = file.readAll();
    file.seek(0);
    return !content.contains("<svg") || content.contains("<text") || content.contains(":text");
}

} // namespace

LMIconTheme::LMIconTheme(const QStringList& dataDirectories, QString themeName)
    : m_themeName(std::move(themeName)) {
    const QString home = qEnvironmentVariable("HOME");
    if (!home.isEmpty())
        m_iconFolders.append(home + QLatin1String("/.icons"));
    for (const QString& directory : dataDirectories) {
        m_iconFolders.append(directory + QLatin1String("/icons"));
        m_pictureFolders.append(directory + QLatin1String("/pixmaps"));
    }
}

const LMIconTheme::Theme& LMIconTheme::theme(const QString& name) {
    const auto known = m_themes.constFind(name);
    if (known != m_themes.cend())
        return *known;
    Theme theme;
    for (const QString& base : std::as_const(m_iconFolders)) {
        const auto file =
            LMKeyFile::fromFile(base + QLatin1Char('/') + name + QLatin1String("/index.theme"));
        if (!file)
            continue;
        const QString group = QStringLiteral("Icon Theme");
        theme.parents = file->list(group, QStringLiteral("Inherits"), QLatin1Char(','));
        const QStringList folders =
            file->list(group, QStringLiteral("Directories"), QLatin1Char(','));
        for (const QString& folder : folders) {
            const auto number = [&](const char* key, int fallback) {
                bool isNumber = false;
                const int found = file->value(folder, QLatin1String(key)).toInt(&isNumber);
                return isNumber ? std::clamp(found, 0, largestEdge) : fallback;
            };
            const int size = number("Size", 0);
            const int scale = std::clamp(number("Scale", 1), 1, 4);
            const QString type = file->value(folder, QStringLiteral("Type"));
            const int slack = type == QLatin1String("Fixed") ? 0 : number("Threshold", 2);
            const bool isScalable = type == QLatin1String("Scalable");
            const int smallest = isScalable ? number("MinSize", size) : size - slack;
            const int largest = isScalable ? number("MaxSize", size) : size + slack;
            theme.folders.append({folder, smallest * scale, largest * scale});
        }
        break;
    }
    return *m_themes.insert(name, theme);
}

void LMIconTheme::collect(const QString& name, int depth, QStringList& chain) {
    // Themes that inherit from each other would go on for ever.
    if (name.isEmpty() || name.contains(QLatin1Char('/')) || chain.contains(name) ||
        depth > deepestInheritance)
        return;
    chain.append(name);
    const QStringList parents = theme(name).parents;
    for (const QString& parent : parents) {
        if (parent != QLatin1String("hicolor")) // Comes last whoever names it.
            collect(parent, depth + 1, chain);
    }
}

QString LMIconTheme::pathInTheme(const QString& themeName, const QString& icon, int size) {
    QList<Folder> folders = theme(themeName).folders;
    std::stable_sort(folders.begin(), folders.end(), [size](const Folder& a, const Folder& b) {
        return a.distance(size) < b.distance(size);
    });
    for (const Folder& folder : std::as_const(folders)) {
        for (const QString& base : std::as_const(m_iconFolders)) {
            const QString path =
                existingFile(base + QLatin1Char('/') + themeName + QLatin1Char('/') + folder.name +
                             QLatin1Char('/') + icon);
            if (!path.isEmpty())
                return path;
        }
    }
    return {};
}

QString LMIconTheme::pathWithoutTheme(const QString& icon) const {
    const QStringList folders = m_iconFolders + m_pictureFolders;
    for (const QString& folder : folders) {
        const QString path = existingFile(folder + QLatin1Char('/') + icon);
        if (!path.isEmpty())
            return path;
    }
    return {};
}

QString LMIconTheme::pathOfIcon(const QString& name, int size) {
    if (name.startsWith(QLatin1Char('/')))
        return QFileInfo(name).isFile() ? name : QString();
    const QString icon = withoutExtension(name);
    if (icon.isEmpty() || icon.contains(QLatin1Char('/')))
        return {};
    QStringList chain;
    collect(m_themeName, 0, chain);
    collect(QStringLiteral("hicolor"), 0, chain);
    for (const QString& themeName : std::as_const(chain)) {
        const QString path = pathInTheme(themeName, icon, size);
        if (!path.isEmpty())
            return path;
    }
    const QString path = pathWithoutTheme(icon);
    if (!path.isEmpty())
        return path;
    for (const auto* themeName : {"Adwaita", "breeze", "gnome", "Humanity"}) {
        const QString found = pathInTheme(QLatin1String(themeName), icon, size);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

QString LMIconThemeNameFromSettings(const QStringList& configDirectories) {
    for (const QString& directory : configDirectories) {
        const auto gtk = LMKeyFile::fromFile(directory + QLatin1String("/gtk-3.0/settings.ini"));
        const QString gtkName =
            gtk ? gtk->value(QStringLiteral("Settings"), QStringLiteral("gtk-icon-theme-name"))
                : QString();
        if (!gtkName.isEmpty())
            return gtkName;
        const auto kde = LMKeyFile::fromFile(directory + QLatin1String("/kdeglobals"));
        const QString kdeName =
            kde ? kde->value(QStringLiteral("Icons"), QStringLiteral("Theme")) : QString();
        if (!kdeName.isEmpty())
            return kdeName;
    }
    return {};
}

QImage LMSquareImageFromFile(const QString& path, int size) {
    if (size <= 0 || size > largestEdge || !QFileInfo(path).isFile())
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile || needsDisplay(file))
        return {};
    QImageReader reader(&file, QFileInfo(path).suffix().toLatin1());
    reader.setDecideFormatFromContent(true);
    const QSize original = reader.size();
    if (original.width() > largestEdge || original.height() > largestEdge)
        return {};
    if (!original.isEmpty()) // Drawings come out sharp at any size.
        reader.setScaledSize(
            original.scaled(size, size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return LMSquareImage(reader.read(), size);
}

QImage LMSquareImage(const QImage& image, int size) {
    if (image.isNull() || size <= 0 || size > largestEdge)
        return {};
    const QImage scaled =
        image.width() == size && image.height() == size
            ? image
            : image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage square(size, size, QImage::Format_ARGB32_Premultiplied);
    if (square.isNull())
        return {};
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((size - scaled.width()) / 2, (size - scaled.height()) / 2, scaled);
    return square;
}
