import { runIn } from './support/suite.mjs';

const names = ['actions', 'frames', 'keyboard', 'layout', 'opening', 'states'];
const suites = await Promise.all(names.map((name) => import(`./suites/${name}.mjs`)));

export const runAllIn = (browserName) => runIn(browserName, suites.map((module) => module.default));
