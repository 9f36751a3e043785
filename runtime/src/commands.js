// The script commands of authors.

// The event in which a command runs: the browser does not tell it to code that is called from a shadow tree. It is
// kept where each copy of this runtime in the page finds it.
export function currentEvent() {
  return window.nbrShowMenu.running || window.event || null;
}

// Runs a command; what goes wrong in it is told on the console and stops nothing. Gives what the command returns.
export function run(command, event) {
  if (command === null || command === undefined || command === '') return undefined;
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
