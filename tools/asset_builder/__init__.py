"""The parts of tools/build-assets."""
