// The script commands of authors.

// The event that a command handles. `window.event` is undefined in listeners inside a shadow tree, so the event is kept
// where each copy of this runtime in the page finds it.
export function currentEvent() {
  return window.nbrShowMenu.running || window.event || null;
}

// Runs a command and returns its result. An exception is logged to the console and goes no further.
export function run(command, event) {
  if (!command) return undefined;
  var shared = window.nbrShowMenu;
  var outer = shared.running;
  shared.running = event || outer;
  try {
    return new Function('event', command).call(window, event);
  } catch (fault) {
    console.error('Menu command "' + command + '":', fault);
    return undefined;
  } finally {
    shared.running = outer;
  }
}
