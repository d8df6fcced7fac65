// SPDX-License-Identifier: MIT
#include "UserInterface/LMWorkspaceListModel.h"

#include "Categories/LMScreenAdditions.h"
#include "Model/LMApplication.h"
#include "Model/LMDisplay.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/LMPresentableText.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMRectangle.h"

#include <QLocale>

#include <algorithm>
#include <utility>

namespace {

QString stateText(LMWorkspaceListModel::State state) {
    using State = LMWorkspaceListModel::State;
    switch (state) {
    case State::Current:
        return LMLocalized("Current");
    case State::CanBecomeCurrent:
        return LMLocalized("Can be made active");
    case State::SameDisplays:
        return LMLocalized("Same displays");
    case State::OtherDisplays:
        break;
    }
    return LMLocalized("Other displays");
}

QString stateDetails(LMWorkspaceListModel::State state) {
    using State = LMWorkspaceListModel::State;
    switch (state) {
    case State::Current:
        return LMLocalized("The attached displays stand like these.");
    case State::CanBecomeCurrent:
        return LMLocalized("The attached displays can be arranged like these.");
    case State::SameDisplays:
        return LMLocalized("The attached displays stand like these, too, but the current "
                           "configuration is older and is the one that is used.");
    case State::OtherDisplays:
        break;
    }
    return LMLocalized("The attached displays cannot be arranged like these.");
}

QString number(qsizetype value) {
    return QLocale().toString(qlonglong(value));
}

QString sizeText(const QRectF& bounds) {
    return QStringLiteral("%1×%2").arg(bounds.width(), 0, 'f', 0).arg(bounds.height(), 0, 'f', 0);
}

/// The main display first, the others from left to right.
std::vector<LMDisplay*> inReadingOrder(std::vector<LMDisplay*> displays) {
    const auto place = [](const LMDisplay* display) {
        const QRectF bounds = LMRectFromString(display->displayBounds());
        const bool isMain = bounds.x() == 0 && bounds.y() == 0;
        return std::tuple(!isMain, bounds.x(), bounds.y());
    };
    std::ranges::stable_sort(displays, {}, place);
    return displays;
}

} // namespace

/// The attached displays, read once for all workspaces.
class LMWorkspaceListModel::Attached {
public:
    explicit Attached(LMScreens& platform)
        : m_screens(platform.screens()), m_canArrange(platform.canArrangeDisplays()) {
        for (const LMScreen& screen : m_screens)
            m_bounds.append(LMStringFromRect(LMScreenAdditions(&screen).CGDisplayBounds()));
    }

    State state(const std::vector<LMDisplay*>& displays) const {
        QStringList bounds;
        for (const LMDisplay* display : displays)
            bounds.append(display->displayBounds());
        if (LMDisplayBoundsAreEqual(bounds, m_bounds))
            return State::Current;
        return m_canArrange && LMDisplaysCanBeArranged(displays, m_screens)
                   ? State::CanBecomeCurrent
                   : State::OtherDisplays;
    }

private:
    QList<LMScreen> m_screens;
    bool m_canArrange;
    QStringList m_bounds;
};

LMWorkspaceListModel::LMWorkspaceListModel(LMEnvironment& environment, LMStoredWindowsStore& store)
    : m_environment(environment), m_store(store) {}

// --- reading the store ---------------------------------------------------------------------

LMWorkspaceListModel::Row LMWorkspaceListModel::row(const LMWorkspace& workspace,
                                                    const Attached& attached) {
    Row row;
    row.objectID = workspace.objectID();
    row.name = LMPresentableLine(workspace.name());
    QStringList displays;
    QStringList details;
    for (const LMDisplay* display : inReadingOrder(workspace.displays())) {
        const QRectF bounds = LMRectFromString(display->displayBounds());
        displays.append(sizeText(bounds));
        details.append(QStringLiteral("%1 (%2, %3) %4")
                           .arg(sizeText(bounds), QString::number(bounds.x(), 'f', 0),
                                QString::number(bounds.y(), 'f', 0),
                                LMPresentableLine(display->productName()).toHtmlEscaped())
                           .trimmed());
    }
    row.displays = displays.join(QStringLiteral(", "));
    row.displayDetails =
        QLatin1String("<p>") + details.join(QLatin1String("<br>")) + QLatin1String("</p>");
    row.displayCount = displays.size();
    row.applicationCount = qsizetype(workspace.applications().size());
    for (const LMApplication* application : workspace.applications())
        row.windowCount += qsizetype(application->windows().size());
    row.state = attached.state(workspace.displays());
    return row;
}

void LMWorkspaceListModel::reload() {
    const Attached attached(m_environment.desktop.screens());
    const auto workspaces = m_store.managedObjectContext().objects<LMWorkspace>();
    QList<Row> rows;
    bool hasCurrent = false;
    for (const LMWorkspace* workspace : workspaces) {
        Row& added = rows.emplaceBack(row(*workspace, attached));
        if (added.state == State::Current && std::exchange(hasCurrent, true))
            added.state = State::SameDisplays; // Commands use the first.
    }

    // Both lists are in the order of the keys, and keys only grow.
    for (qsizetype old = m_rows.size() - 1; old >= 0; --old) {
        if (!std::ranges::binary_search(rows, m_rows[old].objectID.key, {},
                                        [](const Row& row) { return row.objectID.key; })) {
            beginRemoveRows({}, int(old), int(old));
            m_rows.removeAt(old);
            endRemoveRows();
        }
    }
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i] != rows[i]) {
            m_rows[i] = rows[i];
            Q_EMIT dataChanged(index(i, 0), index(i, ColumnCount - 1));
        }
    }
    if (m_rows.size() < rows.size()) {
        beginInsertRows({}, int(m_rows.size()), int(rows.size()) - 1);
        m_rows = rows;
        endInsertRows();
    }
}

LMWorkspace* LMWorkspaceListModel::workspace(const LMObjectID& objectID) const {
    return dynamic_cast<LMWorkspace*>(
        m_store.managedObjectContext().existingObjectWithID(objectID));
}

// --- the table -----------------------------------------------------------------------------

int LMWorkspaceListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_rows.size());
}

int LMWorkspaceListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LMWorkspaceListModel::displayValue(const Row& row, int column) {
    switch (column) {
    case Name:
        return row.name;
    case Displays:
        return LMLeftToRight(row.displays);
    case Applications:
        return number(row.applicationCount);
    case Windows:
        return number(row.windowCount);
    default:
        return stateText(row.state);
    }
}

QVariant LMWorkspaceListModel::sortValue(const Row& row, int column) {
    switch (column) {
    case Displays:
        return QStringLiteral("%1 %2").arg(row.displayCount).arg(row.displays);
    case Applications:
        return row.applicationCount;
    case Windows:
        return row.windowCount;
    case Status:
        return int(row.state);
    default:
        return row.name;
    }
}

QVariant LMWorkspaceListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows.at(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return displayValue(row, column);
    case Qt::EditRole:
        return column == Name ? QVariant(row.name) : QVariant();
    case SortRole:
        return sortValue(row, column);
    case Qt::ToolTipRole:
        return column == Name       ? LMPresentableToolTip(row.name)
               : column == Displays ? row.displayDetails
               : column == Status   ? stateDetails(row.state)
                                    : QString();
    case Qt::TextAlignmentRole:
        if (column == Applications || column == Windows)
            return int(Qt::AlignTrailing | Qt::AlignVCenter);
        return {};
    default:
        return {};
    }
}

QVariant LMWorkspaceListModel::headerData(int section, Qt::Orientation orientation,
                                          int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(
            (section == Applications || section == Windows ? Qt::AlignTrailing : Qt::AlignLeading) |
            Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return LMLocalized("Name");
    case Displays:
        return LMLocalized("Displays");
    case Applications:
        return LMLocalized("Applications");
    case Windows:
        return LMLocalized("Windows");
    default:
        return LMLocalized("Status");
    }
}

Qt::ItemFlags LMWorkspaceListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.column() == Name ? flags | Qt::ItemIsEditable : flags;
}

bool LMWorkspaceListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || index.column() != Name ||
        !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    LMWorkspace* record = workspace(objectID(index.row()));
    const QString name = LMPresentableLine(value.toString()).trimmed();
    if (!record || name == m_rows.at(index.row()).name)
        return false;
    record->setName(name.isEmpty() ? QString() : name);
    m_environment.notificationCenter.postNotification(LMNotification::SaveWindows);
    reload(); // Whether or not somebody saved.
    return true;
}
