// Placeholder until the settings record lands.
#pragma once
namespace qvx {
class cMySettings {};
}  // namespace qvx
