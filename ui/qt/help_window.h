// The help in a window of its own: the text in a dark well, and keys to its beginning and back.
#pragma once

#include "core/ports/help_and_links.h"

#include <QPointer>
#include <QString>
#include <QTextBrowser>
#include <QWidget>

class QPushButton;

namespace zephyne {

// The page itself. Pictures are enlarged with the text; links to the outside go to the user's
// default program.
class HelpPage final : public QTextBrowser {
  public:
    HelpPage(QWidget* parent, double factor);

  protected:
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    double factor_;
};

class HelpWindow final : public QWidget {
  public:
    // factor: logical pixels per px at 100 %.
    explicit HelpWindow(double factor);

    // Shows the file from its beginning, in front of others.
    void open(const QString& help_file);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QPushButton* add_key(const QString& caption);

    HelpPage* page_;
    QPushButton* contents_;
    QPushButton* back_;
    QPushButton* close_;
};

// Makes the window when it is first asked for, and ends it when it is closed.
class QtHelpViewer final : public HelpViewer {
  public:
    explicit QtHelpViewer(double factor) : factor_(factor) {}
    ~QtHelpViewer() override;

    void show_contents(const std::string& help_file) override;
    void close() override;
    void ask_whats_this() override;

    // Null while the help is closed.
    HelpWindow* window() const { return window_; }

  private:
    double factor_;
    QPointer<HelpWindow> window_;
};

}  // namespace zephyne
