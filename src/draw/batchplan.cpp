#include "draw/batchplan.h"

#include <algorithm>

namespace draw {

int divideHalfEven(long long n, long long d) {
    long long q = n / d;
    long long r = n % d;
    if (r < 0) {  // floor division for a negative numerator
        r += d;
        --q;
    }
    if (2 * r > d || (2 * r == d && q % 2 != 0)) ++q;
    return static_cast<int>(q);
}

BatchPlan planBatch(int slotCount, int batches, int have) {
    BatchPlan plan;
    plan.slotCount = slotCount;
    plan.have = have;
    plan.remaining = slotCount - have;
    plan.batches = std::min(batches, slotCount);
    if (slotCount <= 0 || plan.batches <= 0) return plan;

    plan.perBatch = divideHalfEven(slotCount, plan.batches);
    plan.lastBatch = slotCount - (plan.batches - 1) * plan.perBatch;
    plan.done = have > 0 ? (have + plan.perBatch - 1) / plan.perBatch : 0;
    plan.batchCount = plan.done < plan.batches - 1 ? plan.perBatch : plan.lastBatch;
    // A give-up or a make-up can leave slots open after the plan's last batch, where the formula
    // gives 0 or less: an open slot is still drawn, one press at a time if need be.
    if (plan.remaining > 0) plan.batchCount = std::max(1, plan.batchCount);
    plan.batchCount = std::max(0, std::min(plan.batchCount, plan.remaining));
    return plan;
}

}  // namespace draw
