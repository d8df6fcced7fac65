// SPDX-License-Identifier: MIT
#include "UserInterface/LMAboutWindowController.h"

#include "UserInterface/LMWindowPlacement.h"
#include "Utilities/LMFormat.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

constexpr int IconEdge = 96;
constexpr int Margin = 20;
constexpr QSize TextSize(440, 230);

/// The document of that name, in the user's language if there is one, and in the first of the
/// formats a resource may have. Of these, Qt shows HTML; the others appear as the text they are.
QTextBrowser* documentView(const QString& name, const QString& title) {
    auto* view = new QTextBrowser;
    view->setObjectName(name);
    view->setAccessibleName(title);
    view->setOpenExternalLinks(true);
    view->setMinimumSize(TextSize);
    const QString translated = u'_' + LMLocalized("en", "code of this language") + u".html"_qs;
    for (const QString& ending : {translated, u".html"_qs, u".rtf"_qs, u".rtfd"_qs}) {
        QFile file(QLatin1String(":/rook/") + name + ending);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString text = QString::fromUtf8(file.readAll());
        if (file.fileName().endsWith(QLatin1String(".html")))
            view->setHtml(text);
        else
            view->setPlainText(text);
        break;
    }
    return view;
}

QLabel* centredLabel(const QString& text, qreal size, bool isBold) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(isBold);
    label->setFont(font);
    return label;
}

} // namespace

QString LMVersionText(const LMBundleInformation& bundle) {
    if (bundle.shortVersionString.isEmpty())
        return {};
    const QString version =
        bundle.version.isEmpty()
            ? bundle.shortVersionString
            : LMFormat(LMLocalized("%@ (%@)"), {bundle.shortVersionString, bundle.version});
    return LMLocalized("Version ") + version;
}

LMAboutWindowController::LMAboutWindowController(LMBundleInformation bundle)
    : m_bundle(std::move(bundle)) {}

LMAboutWindowController::~LMAboutWindowController() = default;

QWidget* LMAboutWindowController::window() const {
    return m_window.get();
}

std::unique_ptr<QDialog> LMAboutWindowController::makeWindow() const {
    auto window = std::make_unique<QDialog>();
    window->setObjectName(QStringLiteral("aboutWindow"));
    window->setWindowRole(window->objectName());
    window->setWindowTitle(LMFormat(LMLocalized("About %@"), {m_bundle.name}));
    auto* icon = new QLabel;
    icon->setAlignment(Qt::AlignCenter);
    icon->setPixmap(
        QIcon(m_bundle.iconFile).pixmap(QSize(IconEdge, IconEdge), window->devicePixelRatioF()));
    auto* documents = new QTabWidget;
    documents->setDocumentMode(true);
    documents->setAccessibleName(window->windowTitle());
    const auto add = [documents](const QString& name, const QString& title) {
        documents->addTab(documentView(name, title), title);
    };
    add(QStringLiteral("Credits"), LMLocalized("Credits"));
    add(QStringLiteral("License"), LMLocalized("License"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(LMLocalized("Close"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, window.get(), &QDialog::reject);

    auto* layout = new QVBoxLayout(window.get());
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(icon);
    layout->addWidget(centredLabel(m_bundle.name, 1.8, true));
    layout->addWidget(centredLabel(LMVersionText(m_bundle), 1.0, false));
    layout->addSpacing(Margin / 2);
    layout->addWidget(documents, 1);
    layout->addWidget(buttons);
    return window;
}

void LMAboutWindowController::showWindow() {
    // Made anew for each showing: it opens where the user is, at the scale of the screen there, and
    // takes no memory once it is closed.
    m_window = makeWindow();
    QObject::connect(m_window.get(), &QDialog::finished, m_window.get(),
                     [this] { m_window.release()->deleteLater(); });
    m_window->adjustSize();
    LMCentreWindow(*m_window);
    m_window->show();
}
