// The object that the Object contract tests talk to. Every host face (the
// simulator natively, the IDispatch adapter under Wine) exposes this shape:
//
//   TypeName      "ContractSubject"
//   Name          read-write text, first "subject"
//   Count         read-only Long 3
//   Sum(a, b)     Long a + b; 449 with fewer arguments, 450 with more
//   Echo(v)       returns v unchanged
//   Child         the same object every time: TypeName "ContractChild", Name "child"
//   Nobody        Nothing
//   Ping(text)    raises the event "Pinged" with the one argument text
//   Flip(flag)    raises "Flipping" with (flag) by reference; returns the flag as
//                 the handlers left it
//   enumeration   "one", "two", "three"
#pragma once

#include <memory>

#include "sim/fake_object.h"

namespace qvx::sim {

std::shared_ptr<FakeObject> MakeContractSubject();

}  // namespace qvx::sim
