// The reference client of the protocol versions with a session: node session.mjs COMPANION PROJECT
import assert from 'node:assert/strict';
import { Client } from '@modelcontextprotocol/sdk/client/index.js';
import { StdioClientTransport } from '@modelcontextprotocol/sdk/client/stdio.js';
import { converse } from './conversation.mjs';

const [command, project] = process.argv.slice(2);
const client = new Client({ name: 'test', version: '1' });
await client.connect(new StdioClientTransport({ command, args: [project], env: process.env }));
assert.equal(client.getServerVersion().name, 'vellory');
await client.ping();
await converse(client);
await client.close();
