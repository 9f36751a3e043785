import { runSuites } from './suites.mjs';

await runSuites('Chromium');
