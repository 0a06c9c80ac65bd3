#include "glb_file.h"

#include <bit>
#include <cstdint>
#include <stdexcept>

#include "tests/read_file.h"

namespace KelIFC::exporting {
namespace {

std::uint32_t IntegerAt(const std::string& bytes, std::size_t at, std::size_t size = 4) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < size; ++i) {
    number |= std::uint32_t{static_cast<unsigned char>(bytes.at(at + i))} << (8U * i);
  }
  return number;
}

void Require(bool condition, const char* message) {
  if (!condition) throw std::runtime_error(message);
}

}  // namespace

std::vector<double> GlbFile::NumbersOf(std::size_t accessor) const {
  const nlohmann::json& entry = scene.at("accessors").at(accessor);
  const nlohmann::json& view = scene.at("bufferViews").at(entry.at("bufferView").get<int>());
  std::size_t at =
      view.at("byteOffset").get<std::size_t>() + entry.at("byteOffset").get<std::size_t>();
  const bool isShort = entry.at("componentType") == 5123;
  const bool isFloat = entry.at("componentType") == 5126;
  const std::size_t size = isShort ? 2 : 4;
  Require(at % size == 0, "an accessor is not aligned");
  std::vector<double> numbers(entry.at("count").get<std::size_t>() *
                              (entry.at("type") == "VEC3" ? 3U : 1U));
  for (double& number : numbers) {
    const std::uint32_t bits = IntegerAt(binary, at, size);
    number = isFloat ? static_cast<double>(std::bit_cast<float>(bits)) : bits;
    at += size;
  }
  return numbers;
}

double GlbFile::VolumeOf(const nlohmann::json& node) const {
  const nlohmann::json& mesh = scene.at("meshes").at(node.at("mesh").get<std::size_t>());
  const nlohmann::json& primitive = mesh.at("primitives").at(0);
  const std::vector<double> p = NumbersOf(primitive.at("attributes").at("POSITION"));
  const std::vector<double> indices = NumbersOf(primitive.at("indices"));
  double volume = 0.0;
  for (std::size_t i = 0; i < indices.size(); i += 3) {
    const auto a = 3 * static_cast<std::size_t>(indices[i]);
    const auto b = 3 * static_cast<std::size_t>(indices[i + 1]);
    const auto c = 3 * static_cast<std::size_t>(indices[i + 2]);
    volume += (p.at(a) * (p.at(b + 1) * p.at(c + 2) - p.at(b + 2) * p.at(c + 1)) +
               p.at(a + 1) * (p.at(b + 2) * p.at(c) - p.at(b) * p.at(c + 2)) +
               p.at(a + 2) * (p.at(b) * p.at(c + 1) - p.at(b + 1) * p.at(c))) /
              6.0;
  }
  return node.contains("scale") ? volume * node["scale"][0].get<double>() : volume;
}

std::vector<nlohmann::json> GlbFile::ElementNodes() const {
  std::vector<nlohmann::json> nodes;
  for (const nlohmann::json& node : scene.at("nodes")) {
    if (node.contains("mesh")) nodes.push_back(node);
  }
  return nodes;
}

GlbFile::GlbFile(const std::string& path) {
  const std::string bytes = ReadFile(path);
  Require(bytes.substr(0, 4) == "glTF" && IntegerAt(bytes, 4) == 2, "the header is wrong");
  Require(IntegerAt(bytes, 8) == bytes.size(), "the size is wrong");
  const std::size_t sceneSize = IntegerAt(bytes, 12);
  Require(bytes.substr(16, 4) == "JSON" && sceneSize % 4 == 0, "the first chunk is wrong");
  scene = nlohmann::json::parse(bytes.substr(20, sceneSize));
  const std::size_t next = 20 + sceneSize;
  if (next == bytes.size()) return;
  Require(bytes.substr(next + 4, 4) == std::string("BIN\0", 4), "the second chunk is wrong");
  Require(IntegerAt(bytes, next) == bytes.size() - next - 8, "the size of the chunk is wrong");
  binary = bytes.substr(next + 8);
  Require(binary.size() % 4 == 0, "the binary chunk is not aligned");
}

}  // namespace KelIFC::exporting
