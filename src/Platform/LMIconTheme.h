// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

/// Finds the file of an icon by the freedesktop.org rules for icon themes. Needs no connection to a
/// display. What it has read of themes it keeps; make a new one to see a theme installed since.
class LMIconTheme {
public:
    /// The theme is searched first, then those it inherits from, hicolor, the folders of pictures
    /// without a theme, and at last the themes that desktops install as their own. An empty name
    /// stands for no theme of the user's choice.
    LMIconTheme(const QStringList& dataDirectories, QString themeName);

    /// The file that suits the size (pixels) best; an absolute name stands for itself. Null when
    /// there is none.
    QString pathOfIcon(const QString& name, int size);

private:
    struct Folder {
        QString name;
        int smallest = 0; ///< The sizes it serves, pixels.
        int largest = 0;

        int distance(int size) const {
            return size < smallest ? smallest - size : qMax(0, size - largest);
        }
    };
    struct Theme {
        QStringList parents;
        QList<Folder> folders;
    };

    const Theme& theme(const QString& name);
    void collect(const QString& name, int depth, QStringList& chain);
    QString pathInTheme(const QString& themeName, const QString& icon, int size);
    QString pathWithoutTheme(const QString& icon) const;

    QStringList m_iconFolders;
    QStringList m_pictureFolders;
    QString m_themeName;
    QHash<QString, Theme> m_themes;
};

/// The name of the user's icon theme as settings files tell it (GTK's, then KDE's); null when none
/// does.
QString LMIconThemeNameFromSettings(const QStringList& configDirectories);

/// The picture in a file, scaled into a square of the given edge length with its proportions kept;
/// null when it cannot be read. Needs no connection to a display.
QImage LMSquareImageFromFile(const QString& path, int size);

/// The same with a picture at hand.
QImage LMSquareImage(const QImage& image, int size);
