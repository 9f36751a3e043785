#pragma once

namespace nimbrel {

/// Prepares the embedded browser: its own URL scheme, and no way to the network. Must be called before the
/// QApplication is created.
void prepareBrowser();

/// Sets name, icon and behaviour of the program's QApplication, which has been created.
void setUpApplication();

}  // namespace nimbrel
