#pragma once

namespace nimbrel {

/// Sets name, icon and behaviour of the program's QApplication, which has been created.
void setUpApplication();

}  // namespace nimbrel
