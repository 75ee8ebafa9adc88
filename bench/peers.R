# Measures k-means of R: peers.R FILE RUNS POINTS, where FILE holds the runs one after another as doubles.
#
# Prints the milliseconds of one go. Squared distances between runs that are centred and have length 1 are twice those
# of the library, 1 - r with Pearson's r, so the same runs are sorted by the same measure from the same first centres.
clusters <- 5
# As many as the library takes of these runs. R would go on until no run changes its cluster.
iterations <- 13

arguments <- commandArgs(trailingOnly = TRUE)
runs <- as.integer(arguments[2])
points <- as.integer(arguments[3])
values <- matrix(readBin(arguments[1], "double", runs * points), nrow = runs, byrow = TRUE)
values <- values - rowMeans(values)
shapes <- values / sqrt(rowSums(values^2))
elapsed <- system.time(suppressWarnings(
  kmeans(shapes, shapes[seq_len(clusters), ], iter.max = iterations, algorithm = "Lloyd")))
cat(1000 * elapsed[["elapsed"]], "\n")
