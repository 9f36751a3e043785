import { wholeMatrix } from './support/suite.mjs';
import { runSuites } from './suites.mjs';

await runSuites('Firefox', wholeMatrix ? undefined : ['actions', 'keyboard', 'layout']);
