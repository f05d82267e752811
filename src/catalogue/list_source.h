#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tessarine {

// Where list files come from: Qt resources in the app, a folder on disk for the CLI and tests.
// `name` is the bare list name, such as "5LetterWords"; the source adds ".txt".
class ListSource {
 public:
  virtual ~ListSource() = default;
  virtual std::optional<std::string> read(const std::string& name) const = 0;
};

class DirectoryListSource : public ListSource {
 public:
  explicit DirectoryListSource(std::filesystem::path directory) : directory_(std::move(directory)) {}
  std::optional<std::string> read(const std::string& name) const override;

 private:
  std::filesystem::path directory_;
};

}  // namespace tessarine
