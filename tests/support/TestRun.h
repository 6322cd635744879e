#pragma once

// What every test program does before RUN_ALL_TESTS, with or without
// widgets: offscreen platform, Polish locale, and for each test scripted
// message boxes (a box the test does not expect fails it instead of
// blocking the run) and a private, emptied settings store.
void prepareTestRun(int &argc, char **argv);
