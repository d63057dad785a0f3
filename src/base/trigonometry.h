// Trigonometry with the same results on every machine, also for angles of any number of turns.
#pragma once

namespace orby {

// The angle is in radians and in the range of a Single.
double Cosine(double angle);
double Tangent(double angle);

}  // namespace orby
