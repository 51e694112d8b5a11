// Windows on the desktop, one FormWindow for each form.
#pragma once

#include "core/ports/window_host.h"
#include "ui/qt/held_keys.h"

#include <QPointer>
#include <functional>
#include <unordered_map>

namespace zephyne {

class FormWindow;

class QtWindowHost final : public WindowHost {
  public:
    // Needs a QApplication, which it does not outlive.
    // factor: the user's enlargement of all windows, 1 or more; see user_scale_factor().
    // reachable_when_hidden: asked anew each time; empty means never.
    explicit QtWindowHost(double factor, std::function<bool()> reachable_when_hidden = {});
    ~QtWindowHost() override;

    int text_height(const Label& label) const override;
    void create(Form& form) override;
    void destroy(Form& form) override;
    void run_modal(Form& form) override;
    TwipsSize screen() const override;
    std::vector<Place> screens() const override;
    std::int32_t extended_style(const Form& form) const override;
    void set_extended_style(Form& form, std::int32_t style) override;
    void bring_to_front(Form& form) override;
    Form* find(std::string_view form_name) const override;
    Form* modal_form() const override;
    bool reachable_when_hidden() const override;

    // The window of a form; null when it has none.
    FormWindow* window_of(const Form& form) const;

  private:
    HeldKeys held_keys_;
    double factor_;
    std::function<bool()> reachable_when_hidden_;
    std::unordered_map<const Form*, QPointer<FormWindow>> windows_;
};

}  // namespace zephyne
