#pragma once

// How many winners the next press of an award draws. The plan is never stored: it is guessed
// again from the winners actually recorded at every load, so a short batch (too few candidates)
// shifts the batches that follow, and a make-up slot raises the sizes.
namespace draw {

struct BatchPlan {
    int slotCount = 0;   // N, JXNum
    int batches = 0;     // G, JXGroup clamped to N: the value shown on the stage
    int have = 0;        // winners stored for the award
    int remaining = 0;   // N - have; negative when slots were reduced below the winners
    int perBatch = 0;    // P = N / G, halves rounded to the even integer
    int lastBatch = 0;   // L = N - (G - 1) * P, may be 0 or negative
    int done = 0;        // batches guessed as drawn: have / P rounded up
    int batchCount = 0;  // the size of the next press: at least 1 while a slot is open
};

// n / d rounded to the nearest integer, halves to the even one (5/2 -> 2, 7/2 -> 4). d > 0.
int divideHalfEven(long long n, long long d);

// The plan for an award with `slotCount` slots in `batches` batches of which `have` are drawn. A
// zero or negative slot or batch count (which the editors refuse) gives batchCount 0 rather than
// a division by zero.
BatchPlan planBatch(int slotCount, int batches, int have);

}  // namespace draw
