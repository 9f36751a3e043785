// The script commands of authors.

// The event in which a command runs: the browser does not tell it to code that is called from a shadow tree.
var running = null;

export function currentEvent() {
  return running || window.event || null;
}

// Runs a command; what goes wrong in it is told on the console and stops nothing. Gives what the command returns.
export function run(command, event) {
  if (command === null || command === undefined || command === '') return undefined;
  running = event || null;
  try {
    return new Function('event', command).call(window, event);
  } catch (fault) {
    if (window.console) console.error('Menu command "' + command + '":', fault);
    return undefined;
  } finally {
    running = null;
  }
}
