// SPDX-License-Identifier: MIT
#include "UserInterface/LMAlertWindow.h"

#include "UserInterface/LMPresentableText.h"
#include "Utilities/LMFormat.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int IconEdge = 64;
constexpr int TextWidth = 400;
constexpr int Margin = 20;
constexpr int Spacing = 12;
constexpr int MostMessageCharacters = 300;
constexpr int MostInformativeCharacters = 500;
constexpr int MostMessageLines = 3;
constexpr int MostInformativeLines = 10;

} // namespace

LMAlertWindow::LMAlertWindow(const LMAlert& alert, QWidget* sheetOf)
    : QDialog(sheetOf, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowCloseButtonHint |
                           (sheetOf ? Qt::WindowFlags() : Qt::WindowStaysOnTopHint)),
      m_buttonBox(new QDialogButtonBox(this)) {
    setObjectName(QStringLiteral("alertWindow"));
    setWindowRole(objectName());
    setWindowTitle(QStringLiteral("Rook"));
    setWindowModality(sheetOf ? Qt::WindowModal : Qt::ApplicationModal);

    auto* icon = new QLabel(this);
    icon->setPixmap(windowIcon().pixmap(QSize(IconEdge, IconEdge), devicePixelRatioF()));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setHorizontalSpacing(Margin);
    layout->setVerticalSpacing(Spacing);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(icon, 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(makeLabel(alert.message, true), 0, 1);
    if (!alert.informativeText.isEmpty())
        layout->addWidget(makeLabel(alert.informativeText, false), 1, 1);
    if (alert.hasSuppression) {
        m_suppressionButton = new QCheckBox(LMLocalized("Do not show this message again"), this);
        m_suppressionButton->setObjectName(QStringLiteral("suppressionButton"));
        layout->addWidget(m_suppressionButton, 2, 1);
    }
    layout->addWidget(m_buttonBox, 3, 0, 1, 2);
    addButtons(alert.buttons.isEmpty() ? QStringList{LMLocalized("OK")} : alert.buttons);
}

QLabel* LMAlertWindow::makeLabel(const QString& text, bool isMessage) {
    auto* label = new QLabel(this);
    label->setObjectName(isMessage ? QStringLiteral("message") : QStringLiteral("informativeText"));
    label->setTextFormat(Qt::PlainText);
    label->setText(isMessage
                       ? LMPresentableText(text, MostMessageCharacters, MostMessageLines)
                       : LMPresentableText(text, MostInformativeCharacters, MostInformativeLines));
    label->setWordWrap(true);
    label->setFixedWidth(TextWidth);
    if (isMessage) {
        QFont font = label->font();
        font.setBold(true);
        label->setFont(font);
    }
    return label;
}

void LMAlertWindow::addButtons(const QStringList& titles) {
    for (qsizetype index = 0; index < titles.size(); ++index) {
        // The roles give the order that the user's desktop has for them.
        const bool isFirst = index == 0;
        const bool isLast = index == titles.size() - 1;
        const QDialogButtonBox::ButtonRole role = isFirst  ? QDialogButtonBox::AcceptRole
                                                  : isLast ? QDialogButtonBox::RejectRole
                                                           : QDialogButtonBox::ActionRole;
        QPushButton* button =
            m_buttonBox->addButton(LMEscapedAmpersands(LMPresentableLine(titles.at(index))), role);
        button->setObjectName(QStringLiteral("button%1").arg(LMAlertAnswer::FirstButton + index));
        button->setAutoDefault(true);
        m_buttons.append(button);
        if (isFirst) {
            button->setDefault(true);
            button->setFocus();
        }
    }
    connect(m_buttonBox, &QDialogButtonBox::clicked, this, [this](QAbstractButton* button) {
        m_pressed = button;
        done(Accepted);
    });
}

LMAlertAnswer LMAlertWindow::answer() const {
    LMAlertAnswer answer;
    const qsizetype index = m_pressed ? m_buttons.indexOf(m_pressed) : m_buttons.size() - 1;
    answer.buttonCode = LMAlertAnswer::FirstButton + int(index);
    answer.isSuppressionTicked = m_suppressionButton && m_suppressionButton->isChecked();
    return answer;
}
