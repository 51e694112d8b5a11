#include "ui/qt/help_window.h"

#include "ui/qt/pictures.h"
#include "ui/qt/popup_look.h"
#include "ui/qt/whats_this.h"

#include <QBoxLayout>
#include <QIcon>
#include <QImage>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QTextDocument>
#include <QUrl>
#include <cmath>

namespace zephyne {
namespace {

// px at 100 %
constexpr int kWidth = 700;
constexpr int kHeight = 640;
constexpr int kMargin = 12;
constexpr int kGap = 8;
constexpr int kPageMargin = 14;
constexpr int kIndent = 20;

int scaled(int length, double factor) {
    return static_cast<int>(std::lround(length * factor));
}

}  // namespace

HelpPage::HelpPage(QWidget* parent, double factor) : QTextBrowser(parent), factor_(factor) {
    setOpenExternalLinks(true);
    document()->setDefaultStyleSheet(popup_look::help_document(factor));
    document()->setIndentWidth(scaled(kIndent, factor));
    document()->setDocumentMargin(scaled(kPageMargin, factor));
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
    const QImage image(document()->baseUrl().resolved(name).toLocalFile());
    if (image.isNull()) return {};
    return image.scaledToWidth(scaled(image.width(), factor_), Qt::SmoothTransformation);
}

HelpWindow::HelpWindow(double factor) : page_(new HelpPage(this, factor)) {
    setObjectName("help");
    setWindowTitle("Zephyne Help");
    setWindowIcon(pictures::application_icon());
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(popup_look::help_window(factor));
    contents_ = add_key("Contents");
    back_ = add_key("Back");
    close_ = add_key("Close");
    back_->setEnabled(false);
    connect(contents_, &QPushButton::clicked, page_, &HelpPage::home);
    connect(back_, &QPushButton::clicked, page_, &HelpPage::backward);
    connect(close_, &QPushButton::clicked, this, &QWidget::close);
    connect(page_, &HelpPage::backwardAvailable, back_, &QWidget::setEnabled);

    auto* keys = new QHBoxLayout;
    keys->setSpacing(scaled(kGap, factor));
    keys->addWidget(contents_);
    keys->addWidget(back_);
    keys->addStretch();
    keys->addWidget(close_);
    auto* all = new QVBoxLayout(this);
    const int margin = scaled(kMargin, factor);
    all->setContentsMargins(margin, margin, margin, margin);
    all->setSpacing(scaled(kGap, factor));
    all->addLayout(keys);
    all->addWidget(page_);
    const QSize wanted(scaled(kWidth, factor), scaled(kHeight, factor));
    resize(wanted.boundedTo(screen()->availableSize()));
    page_->setFocus();
}

QPushButton* HelpWindow::add_key(const QString& caption) {
    return new QPushButton(caption, this);
}

void HelpWindow::open(const QString& help_file) {
    page_->setSource(QUrl::fromLocalFile(help_file), QTextDocument::HtmlResource);
    page_->home();
    show();
    raise();
    activateWindow();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

QtHelpViewer::~QtHelpViewer() {
    delete window_;
}

void QtHelpViewer::show_contents(const std::string& help_file) {
    if (!window_) window_ = new HelpWindow(factor_);
    window_->open(QString::fromStdString(help_file));
}

void QtHelpViewer::close() {
    if (window_) window_->close();
}

void QtHelpViewer::ask_whats_this() {
    start_whats_this_mode();
}

}  // namespace zephyne
