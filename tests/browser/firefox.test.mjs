import { runAllIn } from './suites.mjs';

runAllIn('Firefox');
