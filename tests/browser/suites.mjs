import { runIn } from './support/suite.mjs';

const names = ['actions', 'frames', 'keyboard', 'layout', 'opening', 'states'];

export async function runSuites(browserName, chosen = names) {
  const modules = await Promise.all(chosen.map((name) => import(`./suites/${name}.mjs`)));
  runIn(browserName, modules.map((module) => module.default));
}
