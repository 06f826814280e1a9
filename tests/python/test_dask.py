"""numbering.dask on a local cluster of two worker processes gives what one process gives."""

import dask.dataframe
import distributed
import pandas

import numbering
import numbering.dask
from conftest import SOURCE_DIR

CORPORA = ["DE", "FR", "US"]


def corpus(country):
    """The site and the numbers of a benchmark corpus file."""
    lines = (SOURCE_DIR / "bench" / "corpus" / f"{country}.txt").read_text().splitlines()
    rows = [line.split(" ", 1) for line in lines if line and not line.startswith("#")]
    _, ext_prefix, length, area = rows[0][1].split(" ")
    site = numbering.Site(country, ext_prefix=ext_prefix, local_length=int(length), area_codes=area)
    return site, [number for _, number in rows[1:]]


def test_two_worker_processes_normalise_as_one_process_does():
    previous = numbering.config_directory()
    numbering.set_config_directory(str(SOURCE_DIR / "config"))
    try:
        work = [corpus(country) for country in CORPORA]
        expected = [numbering.convert_many(site, numbers, "canonical") for site, numbers in work]
        with distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True, dashboard_address=":0",
                                      silence_logs=40) as cluster, distributed.Client(cluster) as client:
            numbering.dask.prepare(client)
            frames = [dask.dataframe.from_pandas(pandas.DataFrame({"number": numbers, "row": range(len(numbers))}),
                                                 npartitions=4) for _, numbers in work]
            results = client.compute([numbering.dask.normalise(frame, "number", site)
                                      for frame, (site, _) in zip(frames, work)], sync=True)
            directories = client.run(lambda: numbering.config_directory())
    finally:
        numbering.set_config_directory(previous)
    assert [f"{SOURCE_DIR}/config/"] * 2 == list(directories.values())
    assert expected == [result["number"].tolist() for result in results]
    assert [list(range(len(numbers))) for _, numbers in work] == [result["row"].tolist() for result in results]
