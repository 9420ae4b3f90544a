// Writes every customUI document the add-in can give a host (the ribbons and
// the views menus' content) into a folder, one file each, for the schema
// check (tools/validate-custom-ui.py). A ribbon id the add-in answers with
// nothing gets no file.
//
//   ribbon_markup_dump OUTDIR
#include <fstream>
#include <iostream>

#include "unit/ribbon/ribbon_documents.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: ribbon_markup_dump OUTDIR\n";
    return 2;
  }
  int written = 0;
  auto documents = qvx::testing::EveryRibbonDocument();
  for (auto& menu : qvx::testing::EveryViewsMenuDocument()) documents.push_back(std::move(menu));
  for (const qvx::testing::RibbonDocument& d : documents) {
    if (d.markup.empty()) continue;
    std::ofstream out(std::string(argv[1]) + "/" + d.name + ".xml", std::ios::binary);
    out << d.markup;
    if (!out) {
      std::cerr << "cannot write " << d.name << "\n";
      return 1;
    }
    ++written;
  }
  std::cout << written << " documents\n";
  return 0;
}
