"""Normalises a column of a Dask DataFrame with the library, partition by partition.

Each worker process reads the configuration once and warms the library up before it runs a task, so that its
threads only ever convert:

    with distributed.Client(cluster) as client:
        numbering.dask.prepare(client, "/etc/numbering")
        calls = numbering.dask.normalise(calls, "callee", numbering.Site("DE", ext_prefix="0", area_codes="30"))
"""

import distributed

import numbering


class Preparation(distributed.WorkerPlugin):
    """Points a worker at the configuration directory and warms the library up, before the worker's first task."""

    def __init__(self, config_directory):
        self.config_directory = config_directory

    def setup(self, worker):
        numbering.set_config_directory(self.config_directory)
        numbering.warm_up()


def prepare(client, config_directory=None):
    """Prepares every worker of client, and every worker that joins it later, to read the configuration from
    config_directory (by default the directory this process reads)."""
    directory = config_directory or numbering.config_directory()
    client.register_worker_plugin(Preparation(directory), name="numbering")


def normalise(frame, column, site, what="canonical"):
    """frame with column, a column of str, replaced by what numbering.convert_many(site, column, what) gives."""
    return frame.map_partitions(_normalise_partition, column, site, what, meta=frame._meta)


def _normalise_partition(partition, column, site, what):
    return partition.assign(**{column: numbering.convert_many(site, partition[column], what)})
