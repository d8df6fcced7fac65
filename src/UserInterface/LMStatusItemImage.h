// SPDX-License-Identifier: MIT
#pragma once

#include "UserInterface/LMTemplateImage.h"

#include <QIconEngine>

/// The picture of the status icon, drawn afresh for each size it is asked for.
///
/// The colour of the panel is not known, so the drawing carries its own dark ground and is legible
/// on light and dark ones. Panels that draw icons themselves (StatusNotifierItem) get its name
/// where it is installed, so that they can draw it at their own scale.
class LMStatusItemImage final : public QIconEngine {
public:
    LMStatusItemImage();

    void paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode,
               QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QString iconName() override { return m_installedName; }
    bool isNull() override { return m_image.isNull(); }
    QIconEngine* clone() const override { return new LMStatusItemImage(*this); }
    QString key() const override { return QStringLiteral("LMStatusItemImage"); }

private:
    LMStatusItemImage(const LMStatusItemImage&) = default;

    LMTemplateImage m_image;
    QString m_installedName; ///< Empty when the icon theme has no such icon.
};
