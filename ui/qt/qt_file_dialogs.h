// The file dialogs: the desktop's own where Qt knows them, else Qt's in the program's colours.
#pragma once

#include "core/ports/file_dialogs.h"

#include <QString>

class QFileDialog;

namespace zephyne {

class QtFileDialogs final : public FileDialogs {
  public:
    // factor: the user's enlargement of all windows, 1 or more; see user_scale_factor().
    explicit QtFileDialogs(double factor) : factor_(factor) {}

    std::optional<std::string> open_file(const FileChoice& choice) override;
    std::optional<std::string> save_file(const FileChoice& choice) override;
    std::optional<std::string> choose_folder(const std::string& title) override;

  private:
    std::optional<std::string> run(QFileDialog& dialog);

    double factor_;
    QString folder_;  // where the last dialog was left; "" at first, which is the working folder
};

}  // namespace zephyne
