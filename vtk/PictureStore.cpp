#include "vtk/PictureStore.h"

#include "stats/ParallelParts.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Talmesh
{
namespace
{
/// Of all pictures: a dozen of an ordinary window, and as many of a larger one. Fewer would drop
/// the pictures of three series before the next selection asks for them.
constexpr std::size_t mostBytes = std::size_t(32) << 20;
constexpr std::size_t mostOfTheLargest = 12;
/// Empty pictures take no bytes.
constexpr std::size_t mostPictures = 64;
constexpr std::size_t lanes = 4;
constexpr std::size_t wordSize = sizeof(std::uint64_t);
/// Bytes whose fingerprint is worth a thread.
constexpr std::size_t bytesOfPart = std::size_t(1) << 20;

/// Different words lead from one state to different states, and so do different states. Once would
/// leave the highest bit, a number's sign, in two places that another sign could meet.
std::uint64_t mixed(std::uint64_t state, std::uint64_t word)
{
  state = (state ^ word) * 0x9e3779b97f4a7c15u; // odd, so that it can be undone
  state = (state ^ (state >> 29)) * 0xbf58476d1ce4e5b9u;
  return state ^ (state >> 32);
}

// Several words at a time, as each step waits for the one before it.
std::uint64_t fingerprint(const unsigned char* bytes, std::size_t size)
{
  std::uint64_t states[lanes] = {1, 2, 3, 4};
  std::uint64_t words[lanes];
  std::size_t done = 0;
  for (; done + sizeof words <= size; done += sizeof words)
  {
    std::memcpy(words, bytes + done, sizeof words);
    for (std::size_t lane = 0; lane < lanes; ++lane)
      states[lane] = mixed(states[lane], words[lane]);
  }
  std::uint64_t result = size;
  for (const std::uint64_t state : states)
    result = mixed(result, state);
  for (; done < size; done += wordSize)
  {
    words[0] = 0;
    std::memcpy(words, bytes + done, std::min(wordSize, size - done));
    result = mixed(result, words[0]);
  }
  return result;
}

/// Of the fingerprints of the parts.
std::uint64_t fingerprintInParts(const unsigned char* bytes, std::size_t size)
{
  std::vector<std::uint64_t> parts(size / bytesOfPart + 1);
  stats::inParallelParts(size, bytesOfPart,
                         [&](std::size_t first, std::size_t last) {
                           parts[first / bytesOfPart] = fingerprint(bytes + first, last - first);
                         });
  return fingerprint(reinterpret_cast<const unsigned char*>(parts.data()),
                     parts.size() * sizeof parts[0]);
}
} // namespace

std::size_t LayerPicture::bytes() const
{
  return pixels ? 4 * static_cast<std::size_t>(pixels->GetNumberOfPoints()) : 0;
}

PictureStore::Picture PictureStore::find(const Key& key)
{
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [&key](const Entry& entry) { return entry.key == key; });
  if (found == entries.end())
    return nullptr;
  entries.splice(entries.begin(), entries, found);
  return found->picture;
}

void PictureStore::keep(Key key, Picture picture)
{
  // What is not a number is found by no key.
  if (std::any_of(key.begin(), key.end(), [](double part) { return std::isnan(part); }))
    return;
  entries.push_front({std::move(key), std::move(picture)});
  std::size_t largest = 0;
  for (const Entry& entry : entries)
    largest = std::max(largest, entry.picture->bytes());
  const std::size_t most = std::max(mostBytes, mostOfTheLargest * largest);
  std::size_t bytes = 0;
  std::size_t pictures = 0;
  for (auto entry = entries.begin(); entry != entries.end();)
  {
    bytes += entry->picture->bytes();
    const bool fits = bytes <= most && ++pictures <= mostPictures;
    entry = fits ? std::next(entry) : entries.erase(entry);
  }
}

void addContent(PictureStore::Key& key, const void* bytes, std::size_t size)
{
  const auto* const first = static_cast<const unsigned char*>(bytes);
  const std::uint64_t number =
      size > bytesOfPart ? fingerprintInParts(first, size) : fingerprint(first, size);
  key.push_back(static_cast<double>(number >> 32));
  key.push_back(static_cast<double>(number & 0xffffffffu));
}
} // namespace Talmesh
