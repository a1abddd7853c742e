#pragma once

#include <string>

namespace qncal {

/// A dialog without a toolkit: its state and its event routines. A `DialogHost` shows it.
class Form {
public:
    Form() = default;
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& caption() const { return caption_; }
    void caption(std::string caption) { caption_ = std::move(caption); }
    bool isVisible() const { return visible_; }

    /// Shows the form through the dialog host; without one it returns at once as if closed.
    void showModal();
    void show();
    void hide();
    void bringToFront();

private:
    std::string caption_;
    bool visible_ = false;
};

} // namespace qncal
