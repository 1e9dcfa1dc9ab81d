#pragma once

#include <memory>

class QGuiApplication;

namespace vendrel {

/// Fonts need an application object. Holds one for as long as it lives, without a screen, unless
/// the program has one already.
class GuiApplication {
  public:
    GuiApplication();
    ~GuiApplication();
    GuiApplication(const GuiApplication&) = delete;
    GuiApplication& operator=(const GuiApplication&) = delete;

  private:
    std::unique_ptr<QGuiApplication> application_;
};

}  // namespace vendrel
