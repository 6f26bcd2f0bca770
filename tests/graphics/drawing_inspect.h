// Reading a recorded picture in the graphics tests: its texts, its commands of one kind, its scale.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "graphics/canvas.h"

namespace vn::test {

inline std::vector<std::string> Texts(const draw::Drawing& d) {
  std::vector<std::string> texts;
  for (const draw::DrawCommand& c : d.commands)
    if (c.kind == draw::DrawCommand::Kind::Text) texts.push_back(c.text);
  return texts;
}

inline bool HasText(const draw::Drawing& d, const std::string& text) {
  const auto t = Texts(d);
  return std::find(t.begin(), t.end(), text) != t.end();
}

inline std::vector<draw::DrawCommand> Commands(const draw::Drawing& d, draw::DrawCommand::Kind kind) {
  std::vector<draw::DrawCommand> out;
  for (const draw::DrawCommand& c : d.commands)
    if (c.kind == kind) out.push_back(c);
  return out;
}

// The lines drawn in one colour.
inline std::vector<draw::DrawCommand> LinesIn(const draw::Drawing& d, draw::Rgb colour) {
  std::vector<draw::DrawCommand> out;
  for (const draw::DrawCommand& c : Commands(d, draw::DrawCommand::Kind::Line))
    if (c.pen.color == colour) out.push_back(c);
  return out;
}

}  // namespace vn::test
