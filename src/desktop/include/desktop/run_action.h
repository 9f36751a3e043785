#pragma once

#include <QString>
#include <exception>
#include <functional>
#include <initializer_list>

/// Exceptions must not pass through Qt. Every slot, event handler and timer callback that runs code of the library
/// does so through `runAction`, and so does every callback that the library makes from within Qt's code.
namespace nimbrel {

using Action = std::function<void()>;
/// Runs an action of the user that a part of a window has noticed, and refreshes the whole window afterwards.
using ActionRunner = std::function<void(const Action&)>;

/// Runs `action`, then each of `afterwards`, even if one before it has thrown. Only then reports the exceptions: the
/// reporter runs an event loop, in which the windows must already show the current state.
void runAction(const Action& action, std::initializer_list<Action> afterwards = {});

/// `reporter` shows the text of an error to the user. While there is none, errors go to the log.
void setErrorReporter(std::function<void(const QString& text)> reporter);

/// The file, if the error names one, and the reason.
QString errorText(const std::exception& error);

}  // namespace nimbrel
