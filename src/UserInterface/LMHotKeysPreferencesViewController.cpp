// SPDX-License-Identifier: MIT
#include "UserInterface/LMHotKeysPreferencesViewController.h"

#include "Controller/LMHotKeyCenter.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/LMShortcutRecorder.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace Keys = LMUserDefaultsKeys;

namespace {

constexpr int Margin = 20;
constexpr int MessageCharacters = 54;

/// Legible on the window's ground, be it light or dark.
QColor warningColour(const QPalette& palette) {
    constexpr int Middle = 128;
    return palette.color(QPalette::Window).lightness() < Middle ? QColor(0xff, 0xa0, 0x7a)
                                                                : QColor(0xb0, 0x2a, 0x10);
}

} // namespace

LMHotKeysPreferencesViewController::LMHotKeysPreferencesViewController(LMEnvironment& environment,
                                                                       LMHotKeyCenter& hotKeys)
    : m_environment(environment),
      m_hotKeys(hotKeys), m_rows{
                              {Keys::RestoreAllWindowsHotKey, LMLocalized("&Restore All Windows")},
                              {Keys::RestoreActiveApplicationWindowsHotKey,
                               LMLocalized("Restore Windows for Active &Application")},
                              {Keys::StoreActiveApplicationWindowsHotKey,
                               LMLocalized("Store All Windows for Active A&pplication")},
                              {Keys::StoreActiveWindowHotKey, LMLocalized("&Store Active Window")},
                              {Keys::LinkActiveWindowHotKey, LMLocalized("&Link Active Window")},
                              {Keys::StoreAllWindowsHotKey, LMLocalized("Store All &Windows")},
                              {Keys::ShowMenuHotKey, LMLocalized("Display &Menu")}} {
    connect(&hotKeys, &LMHotKeyCenter::hotKeyChanged, this,
            &LMHotKeysPreferencesViewController::showConflicts);
}

QString LMHotKeysPreferencesViewController::identifier() const {
    return QStringLiteral("HotKeysPreferences");
}

QIcon LMHotKeysPreferencesViewController::toolbarItemImage() const {
    return LMPreferencesImage(identifier());
}

QString LMHotKeysPreferencesViewController::toolbarItemLabel() const {
    return LMLocalized("Hot Keys");
}

QWidget* LMHotKeysPreferencesViewController::loadView() {
    auto* view = new QWidget;
    auto* grid = new QGridLayout(view);
    grid->setContentsMargins(Margin, Margin, Margin, Margin);
    grid->setVerticalSpacing(0);
    for (Row& row : m_rows)
        addRow(*grid, row);
    grid->setRowStretch(grid->rowCount(), 1);
    view->setEnabled(m_environment.desktop.hotKeys().isAvailable());
    showConflicts();
    return view;
}

/// Two lines of the grid: the recorder with its label, and what stands in the way of it.
void LMHotKeysPreferencesViewController::addRow(QGridLayout& grid, Row& row) {
    const int line = grid.rowCount();
    auto* label = new QLabel(LMFormat(LMLocalized("%@:"), {row.caption}));
    row.recorder = new LMShortcutRecorder(m_environment, m_hotKeys, row.title());
    row.recorder->setAssociatedUserDefaultsKey(row.key);
    label->setBuddy(row.recorder);
    row.message = new QLabel;
    row.message->setObjectName(row.key + QStringLiteral("Message"));
    row.message->setTextFormat(Qt::PlainText);
    row.message->setWordWrap(true);
    row.message->setAlignment(Qt::AlignTrailing);
    row.message->setMinimumWidth(row.message->fontMetrics().averageCharWidth() * MessageCharacters);
    grid.addWidget(label, line, 0, Qt::AlignTrailing | Qt::AlignVCenter);
    grid.addWidget(row.recorder, line, 1);
    grid.addWidget(row.message, line + 1, 0, 1, 2);
    grid.setRowMinimumHeight(line, row.recorder->sizeHint().height() + 8);
}

void LMHotKeysPreferencesViewController::viewWillAppear() {
    showConflicts();
}

void LMHotKeysPreferencesViewController::viewDidDisappear() {
    for (const Row& row : std::as_const(m_rows)) {
        if (row.recorder)
            row.recorder->stopRecording();
    }
}

void LMHotKeysPreferencesViewController::showConflicts() {
    for (const Row& row : std::as_const(m_rows)) {
        if (!row.message)
            continue;
        const QString text = conflict(row);
        QPalette palette = QGuiApplication::palette();
        palette.setColor(QPalette::WindowText, warningColour(palette));
        row.message->setPalette(palette);
        row.message->setText(text);
        row.message->setVisible(!text.isEmpty());
        row.recorder->setMessage(text);
    }
}

/// Why the hot key does not work; empty when it does, or when there is none.
QString LMHotKeysPreferencesViewController::conflict(const Row& row) const {
    const QList<LMHotKeyReport> reports = m_hotKeys.hotKeys();
    const auto report = std::ranges::find(reports, row.key, &LMHotKeyReport::key);
    if (report == reports.end() || report->state == LMHotKeyReport::State::Registered)
        return {};
    for (const LMHotKeyReport& other : reports) {
        const bool isTaken =
            other.state == LMHotKeyReport::State::Registered && other.shortcut == report->shortcut;
        const auto holder = std::ranges::find(m_rows, other.key, &Row::key);
        if (isTaken && holder != m_rows.end())
            return LMFormat(LMLocalized("“%@” is using %@."),
                            {holder->title(), other.shortcut->description()});
    }
    return report->reason;
}
