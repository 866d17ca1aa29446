// Lengths of nodes are inches there, those of tables points; a pixel of ours is a point.
#include "report/GraphvizText.h"

namespace {

std::string inches(int points) {
  const int thousandths = (points * 1000 + 36) / 72;
  std::string fraction = std::to_string(thousandths % 1000);
  fraction.insert(0, 3 - fraction.size(), '0');
  return std::to_string(thousandths / 1000) + "." + fraction;
}

}  // namespace

std::string toGraphviz(const Neighbourhood& neighbourhood) {
  std::string text = "digraph{graph[rankdir=";
  text += neighbourhood.isUpright ? "TB" : "LR";
  text += ",nodesep=0.18,ranksep=0.35];node[shape=box,label=\"\",fixedsize=true];edge[dir=none];\n";
  for (std::size_t i = 0; i < neighbourhood.boxes.size(); ++i) {
    const Neighbourhood::Box& box = neighbourhood.boxes[i];
    text += std::to_string(i) + "[width=" + inches(box.width) + ",height=" + inches(box.height) + "];\n";
  }
  for (std::size_t i = 0; i < neighbourhood.lines.size(); ++i) {
    const Neighbourhood::Line& line = neighbourhood.lines[i];
    text += std::to_string(line.first) + "->" + std::to_string(line.second) + "[color=" + std::to_string(i);
    if (line.textWidth > 0) {
      text += ",label=<<TABLE BORDER=\"0\" FIXEDSIZE=\"TRUE\" WIDTH=\"" + std::to_string(line.textWidth) +
              "\" HEIGHT=\"" + std::to_string(Neighbourhood::textHeight) + "\"><TR><TD></TD></TR></TABLE>>";
    }
    text += "];\n";
  }
  return text += "}\n";
}
