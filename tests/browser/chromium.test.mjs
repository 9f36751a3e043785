import { runAllIn } from './suites.mjs';

runAllIn('Chromium');
