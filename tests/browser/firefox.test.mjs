import { runIn } from './support/suite.mjs';
import { suites } from './suites.mjs';

runIn('Firefox', suites);
