// Trigonometry with the same results on every machine, also for angles of any number of turns.
#pragma once

namespace orby {

// The angle is in radians and in the range of a Single.
double Cosine(double angle);

// The same without the library's knowledge of pi. The angle is at least 0.5.
double TurnedCosine(double angle);

}  // namespace orby
