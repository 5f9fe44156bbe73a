// The official storage client, unchanged, against morvane-server (started by
// tests/server/tst_jsclients.cpp): upload, download, a signed URL and removal.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { StorageClient } from '@supabase/storage-js';

const fixture = JSON.parse(process.env.MORVANE_FIXTURE);
const storage = new StorageClient(`${process.env.MORVANE_URL}/storage/v1`, {
    apikey: process.env.MORVANE_ANON_KEY,
    Authorization: `Bearer ${process.env.MORVANE_TOKEN}`,
});
const bucket = storage.from('invoice-templates');
const path = `${fixture.user}/signed/Factuur 2025-0001.pdf`;
const pdf = Buffer.concat([Buffer.from('%PDF-1.7\n'), Buffer.alloc(2048, 0), Buffer.from('\n%%EOF\n')]);

function ok(result) {
    assert.equal(result.error, null, `unexpected error: ${JSON.stringify(result.error)}`);
    return result.data;
}

test('upload, download, a signed URL without any token, and removal', async () => {
    const uploaded = ok(await bucket.upload(path, pdf, { contentType: 'application/pdf' }));
    assert.equal(uploaded.fullPath, `invoice-templates/${path}`);
    const blob = ok(await bucket.download(path));
    assert.equal(blob.type, 'application/pdf');
    assert.deepEqual(Buffer.from(await blob.arrayBuffer()), pdf);

    const served = await fetch(ok(await bucket.createSignedUrl(path, 60)).signedUrl);
    assert.equal(served.status, 200);
    assert.deepEqual(Buffer.from(await served.arrayBuffer()), pdf);

    const removed = ok(await bucket.remove([path, `${fixture.user}/never-was.txt`]));
    assert.deepEqual(removed.map((entry) => entry.name), [path]);
    assert.equal((await bucket.download(path)).error.statusCode, '404');
});
