# Filled in with the exported targets, headers, package and pkg-config files.
